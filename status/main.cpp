#include <windows.h>

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "lib/string/visible_text.h"
#include "lib/ui/utf8_output.h"
#include "status/answer.h"
#include "status/command_line.h"
#include "status/json_report.h"
#include "status/text_report.h"
#include "tool/library_search.h"

namespace kelvo {

namespace {

enum ExitCode : int {
  kAllPresent = 0,
  kSomethingAbsent = 1,
  kWrongCommandLine = 2,
  kSomethingUnknown = 3
};

int ExitCodeOf(State worst) {
  switch (worst) {
    case State::kTold:
    case State::kPresent:
      return kAllPresent;
    case State::kAbsent:
      return kSomethingAbsent;
    case State::kUnknown:
      break;
  }
  return kSomethingUnknown;
}

int Write(std::string_view text, int exitCode) {
  return WriteUtf8(STD_OUTPUT_HANDLE, text) ? exitCode : kSomethingUnknown;
}

int Run(int count, const wchar_t* const* words) {
  const CommandLine line = ParseCommandLine(count, words);
  switch (line.kind) {
    case CommandLine::Kind::kHelp:
      return Write(UsageText(), kAllPresent);
    case CommandLine::Kind::kVersion:
      return Write("sorrel_status " KELVO_VERSION "\n", kAllPresent);
    case CommandLine::Kind::kWrong:
      WriteUtf8(STD_ERROR_HANDLE, ToVisibleUtf8(line.mistake) + "\n\n" + UsageText());
      return kWrongCommandLine;
    case CommandLine::Kind::kQuestions:
      break;
  }
  const std::vector<Item> items = Answer(line.questions);
  return Write(line.asJson ? JsonReport(items) : TextReport(items), ExitCodeOf(WorstState(items)));
}

}  // namespace

}  // namespace kelvo

extern "C" int wmain(int argc, wchar_t** argv) {
  kelvo::NarrowLibrarySearch();
  try {
    return kelvo::Run(argc, argv);
  } catch (const std::exception& failure) {
    kelvo::WriteUtf8(STD_ERROR_HANDLE, std::string("sorrel_status: ") + failure.what() + "\n");
    return kelvo::kSomethingUnknown;
  }
}
