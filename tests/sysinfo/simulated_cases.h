#pragma once

#include <sstream>

#include "tests/support/testing.h"

namespace kelvo::test {

// The left side of the current case: the simulated system and how it differs from the defaults,
// such as "5.1, type 2, bits 32", or the name of a file, and what to ask and to change about it.
inline std::string given;
inline bool Has(const std::string& word) { return given.find(word) != std::string::npos; }

// Returns the number after a word of the case, or `usual` if the word is missing.
inline DWORD Number(const std::string& word, DWORD usual) {
  const std::size_t at = given.find(word + " ");
  return at == std::string::npos ? usual
                                 : std::strtoul(given.c_str() + at + word.length(), nullptr, 0);
}

// For each case in the file, sets `given` and calls `run`, then checks that the results reproduce
// the file. A case is "given = seen"; lines that start with a space continue it.
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
