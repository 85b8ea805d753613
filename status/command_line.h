#pragma once

#include <string>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The items that a command line asks about. Names and paths are copied unchanged from the
// arguments.
struct Questions {
  std::vector<WString> applications;
  std::vector<WString> publishers;      // certificate files
  std::vector<WString> intermediates;   // certificate files
  std::vector<WString> driverPackages;  // INF files
  bool service = false;

  // Returns whether the command line names no item and so asks for the general report.
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

// Parses the `count` arguments of a command line; the first is the program's own path.
CommandLine ParseCommandLine(int count, const wchar_t* const* arguments);

// Returns the usage text, in ASCII. The text also explains the exit codes.
std::string UsageText();

}  // namespace kelvo
