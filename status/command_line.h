#pragma once

#include <string>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The items that a command line asks about. Names and paths are copied unchanged from the
// arguments.
struct Questions {
  std::vector<WString> applications;
  std::vector<WString> publishers;      // paths of certificate files
  std::vector<WString> intermediates;   // paths of certificate files
  std::vector<WString> driverPackages;  // paths of INF files
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
  WString mistake;  // what is wrong with the command line; empty unless `kind` is kWrong
};

// Parses the `count` arguments of a command line. The first argument is the program's own path.
CommandLine ParseCommandLine(int count, const wchar_t* const* arguments);

// Returns the usage text, in ASCII. The text also explains the exit codes.
std::string UsageText();

}  // namespace kelvo
