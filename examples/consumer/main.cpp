#include <cstdio>

#include "lib/string/string_tokenizer.h"
#include "lib/sysinfo/system_version_string.h"

int main() {
  std::printf("%ls\n", kelvo::GetSystemVersionString().c_str());
  for (kelvo::StringTokenizer words(L"one;two", L";", true); words.HasMoreTokens();) {
    std::printf("%ls\n", words.NextToken().c_str());
  }
}
