#pragma once

#include <sstream>

#include "tests/support/testing.h"

namespace kelvo::test {

// What is given in the simulated case: the machine or file, and what it does otherwise.
inline std::string given;
inline bool Has(const std::string& word) { return given.find(word) != std::string::npos; }

// The number behind a word of it, `usual` where the word is not there.
inline DWORD Number(const std::string& word, DWORD usual) {
  const std::size_t at = given.find(word + " ");
  return at == std::string::npos ? usual
                                 : std::strtoul(given.c_str() + at + word.length(), nullptr, 0);
}

// Plays each case of a file, "given = seen" on one line or two, and compares what `play` sees.
template <typename Play>
void PlayCases(const std::wstring& file, const Play& play) {
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\" + file)));
  std::string all;
  for (std::string line; std::getline(cases, line);) {
    if (!line.starts_with(' ')) {
      given = line.substr(0, line.find(" = "));
      const std::string seen = play();
      all += given + (given.length() + seen.length() > 117 ? "\n  = " : " = ") + seen + "\n";
    }
  }
  CheckAgainstFile(all, file);
}

}  // namespace kelvo::test
