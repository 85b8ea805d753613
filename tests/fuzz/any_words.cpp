// The companion's command line: whatever the words are, a value arrives as it was given.

#include "status/command_line.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

namespace {

const Target kAnyWords("any words", [](Input& input) {
  constexpr const wchar_t* kOptions[] = {L"--application", L"--publisher", L"--json", L"--help"};
  const std::wstring value = input.Word(12);
  std::vector<std::wstring> words = {L"sorrel_status.exe", L"--application=" + value};
  for (std::size_t left = input.Number(6); left > 0; --left) {
    words.push_back(input.Chance() ? std::wstring(kOptions[input.Number(3)]).substr(input.Number(3))
                                   : input.Word(12, input.Chance() ? L"-=a \"\x17D" : L""));
  }
  std::vector<const wchar_t*> pointers;
  pointers.reserve(words.size());
  for (const std::wstring& word : words) {
    pointers.push_back(word.c_str());
  }
  const CommandLine parsed = ParseCommandLine(static_cast<int>(words.size()), pointers.data());
  if (parsed.kind == CommandLine::Kind::kWrong) {
    Expect(!parsed.mistake.empty(), "a mistake has a text");
  } else {
    Expect(std::wstring_view(parsed.questions.applications.front()) == value,
           "a value arrives unit by unit");
  }
});

}  // namespace

}  // namespace kelvo::fuzz
