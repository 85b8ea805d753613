#pragma once

#include <string>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// What the command line asks for. Names and paths are its arguments, unchanged.
struct Questions {
  std::vector<WString> applications;
  std::vector<WString> publishers;      // certificate files
  std::vector<WString> intermediates;   // certificate files
  std::vector<WString> driverPackages;  // INF files
  bool service = false;

  // Returns whether nothing in particular is asked for, which means everything.
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

// Parses the `count` words of a command line, the first of which is the program's own path.
CommandLine ParseCommandLine(int count, const wchar_t* const* words);

// Returns how to call the program and what its exit codes mean, in ASCII.
std::string UsageText();

}  // namespace kelvo
