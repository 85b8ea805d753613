#include "status/command_line.h"

#include "tests/support/testing.h"

TEST_CASE("ParseCommandLine: returns the application names unchanged, or describes the mistake") {
  using Kind = CommandLine::Kind;
  struct Row {
    std::vector<const wchar_t*> arguments;
    Kind kind;
    std::vector<WString> applications;
    WString mistake;
  };
  const Row rows[] = {
      {{}, Kind::kQuestions, {}, L""},
      {{L"--application", L"a,b", L"--application=", L"--application=-\u00FF\u0416\xDE00\xFFFF"},
       Kind::kQuestions,
       {L"a,b", L"", L"-\u00FF\u0416\xDE00\xFFFF"},
       L""},
      {{L"--application", L"--json"}, Kind::kQuestions, {L"--json"}, L""},
      {{L"--version", L"--help"}, Kind::kHelp, {}, L""},
      {{L"--version"}, Kind::kVersion, {}, L""},
      {{L"--service=false"}, Kind::kWrong, {}, L"Option 'service' takes no value"},
      {{L"--json=0"}, Kind::kWrong, {}, L"Option 'json' takes no value"},
      {{L"--application"}, Kind::kWrong, {}, L"Option 'application' is missing an argument"},
      {{L"--Json"}, Kind::kWrong, {}, L"Option 'Json' does not exist"},
      {{L"\u0416\xD800"}, Kind::kWrong, {}, L"Unexpected word '\u0416\xD800'"},
      {{L"--", L"x"}, Kind::kWrong, {}, L"Unexpected word 'x'"},
  };
  for (const auto& [arguments, kind, applications, mistake] : rows) {
    std::vector<const wchar_t*> all{L"sorrel_status.exe"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const CommandLine line = ParseCommandLine(static_cast<int>(all.size()), all.data());
    CAPTURE(mistake);
    CHECK(line.kind == kind);
    CHECK(line.questions.applications == applications);
    CHECK(line.mistake == mistake);
  }
}
