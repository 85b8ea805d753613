#pragma once

#include <sstream>

#include "tests/support/testing.h"

namespace kelvo::test {

// The simulated case: the machine or the file, and how it differs from the usual.
inline std::string given;
inline bool Has(const std::string& word) { return given.find(word) != std::string::npos; }

// Returns the number behind a word of the case, or `usual` if the word is missing.
inline DWORD Number(const std::string& word, DWORD usual) {
  const std::size_t at = given.find(word + " ");
  return at == std::string::npos ? usual
                                 : std::strtoul(given.c_str() + at + word.length(), nullptr, 0);
}

// Runs each case of a file, "given = seen" on one line or two, and compares what `run` returns.
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
