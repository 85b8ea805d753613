// Demonstrates some of the library's functions for strings, long paths and locales. Prints each
// result on its own line. Output to a file or a pipe is in UTF-8.

#include <windows.h>

#include <string>

#include "lib/paths/long_path_prefix.h"
#include "lib/string/hex_text.h"
#include "lib/string/string_tokenizer.h"
#include "lib/string/text_routines.h"
#include "lib/string/visible_text.h"
#include "lib/ui/locale_table.h"
#include "lib/ui/localised_file.h"
#include "lib/ui/utf8_output.h"

using kelvo::WString;

namespace {

void Print(const char* label, const WString& text) {
  kelvo::WriteUtf8(STD_OUTPUT_HANDLE, std::string(label) + kelvo::ToVisibleUtf8(text) + "\n");
}

}  // namespace

extern "C" int wmain(int /*count*/, wchar_t** /*arguments*/) {
  WString list = L"kite;;brindle;rind";
  kelvo::ReplaceAll(list, L"rind", L"heron");
  Print("replaced:    ", list);
  for (kelvo::StringTokenizer items(list, L";", true); items.HasMoreTokens();) {
    Print("item:        ", items.NextToken());
  }
  Print("as bytes:    ", kelvo::BytesToHex(list.c_str(), 4 * sizeof(wchar_t)));
  Print("with prefix: ", kelvo::AddLongPathPrefix(L"C:\\setup/../data"));
  Print("no prefix:   ", kelvo::RemoveLongPathPrefix(L"\\\\?\\UNC\\server\\share"));
  const LCID locale = kelvo::FindLocaleId(L"de-ch");
  Print("locale:      ", kelvo::FindLocaleName(locale));
  Print("file path:   ",
        kelvo::GetLocalisedFilePath(L"C:\\setup", L"texts.dll", LANGIDFROMLCID(locale),
                                    kelvo::LocalisedFileForm::kFolder));
  return 0;
}
