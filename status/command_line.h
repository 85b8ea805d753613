#pragma once

#include <string>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// What is asked for. The names and paths are exactly the words of the command line.
struct Questions {
  std::vector<WString> applications;
  std::vector<WString> publishers;      // certificate files
  std::vector<WString> intermediates;   // certificate files
  std::vector<WString> driverPackages;  // INF files
  bool service = false;

  // Whether nothing in particular is asked for, which means all that can be told.
  [[nodiscard]] bool IsGeneral() const {
    return !service && applications.empty() && publishers.empty() && intermediates.empty() &&
           driverPackages.empty();
  }
};

struct CommandLine {
  enum class Kind { kQuestions, kHelp, kVersion, kWrong };

  Kind kind = Kind::kQuestions;
  Questions questions;
  bool asJson = false;
  WString mistake;  // for kWrong
};

// `words` are the `count` words of a command line, the program's own path first.
CommandLine ParseCommandLine(int count, const wchar_t* const* words);

// How the program is called and what its exit codes mean, in ASCII.
std::string UsageText();

}  // namespace kelvo
