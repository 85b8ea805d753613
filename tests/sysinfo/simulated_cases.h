#pragma once

#include <sstream>

#include "tests/support/testing.h"

namespace kelvo::test {

// The current case without its result. It is either a simulated system ("5.1, type 2, bits 32"), or
// a file, a version and changes to what VerQueryValueW returns.
inline std::string given;
inline bool Has(const std::string& word) { return given.find(word) != std::string::npos; }

// Returns the number that follows `word` in `given`, or `usual` if `given` does not contain `word`.
inline DWORD Number(const std::string& word, DWORD usual) {
  const std::size_t at = given.find(word + " ");
  return at == std::string::npos ? usual
                                 : std::strtoul(given.c_str() + at + word.length(), nullptr, 0);
}

// For each case in the file, sets `given` and calls `run`. Then checks that the results are those
// in the file. A case is "given = result"; lines that start with a space continue the case.
template <typename Run>
void RunCases(const std::wstring& file, const Run& run) {
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\" + file)));
  std::string all;
  for (std::string line; std::getline(cases, line);) {
    if (!line.starts_with(' ')) {
      given = line.substr(0, line.find(" = "));
      const std::string seen = run();
      all += given + (given.length() + seen.length() > 117 ? "\n  = " : " = ") + seen + "\n";
    }
  }
  CheckAgainstFile(all, file);
}

}  // namespace kelvo::test
