// The companion's options and its JSON: what goes in comes out.

#include <array>
#include <nlohmann/json.hpp>

#include "lib/string/utf8.h"
#include "status/command_line.h"
#include "status/json_report.h"
#include "torture/input.h"

namespace kelvo::torture {

namespace {

constexpr std::array kOptions = {L"--application", L"--publisher", L"--intermediate", L"--inf"};

CommandLine Parse(const std::vector<std::wstring>& words) {
  std::vector<const wchar_t*> pointers;
  pointers.reserve(words.size());
  for (const std::wstring& word : words) {
    pointers.push_back(word.c_str());
  }
  return ParseCommandLine(static_cast<int>(pointers.size()), pointers.data());
}

// Any words at all: no fault, and a mistake is told.
void ParseAnything(Input& input) {
  std::vector<std::wstring> words = {L"sorrel_status.exe"};
  for (std::size_t left = input.Number(6); left > 0; --left) {
    words.push_back(input.Chance()
                        ? std::wstring(kOptions.at(input.Number(3))).substr(input.Number(3))
                        : input.Text(12, input.Chance() ? L"-=a \"\x17D" : L""));
  }
  const CommandLine parsed = Parse(words);
  Expect(parsed.kind != CommandLine::Kind::kWrong || !parsed.mistake.empty(),
         "a mistake has a text");
}

// Sound options: each value arrives unit by unit, in its order.
void ParseOptions(Input& input) {
  std::vector<std::wstring> words = {L"sorrel_status.exe"};
  std::array<std::vector<std::wstring>, kOptions.size()> given;
  for (std::size_t left = input.Number(5); left > 0; --left) {
    const std::size_t option = input.Number(kOptions.size() - 1);
    // A word ends with its first NUL.
    std::wstring value = L"x" + input.Text(10);
    value.resize(std::min(value.find(L'\0'), value.length()));
    words.emplace_back(kOptions.at(option));
    words.push_back(value);
    given.at(option).push_back(value);
  }
  const CommandLine parsed = Parse(words);
  Expect(parsed.kind == CommandLine::Kind::kQuestions, "sound options are understood");
  const auto& [applications, publishers, intermediates, driverPackages, service] = parsed.questions;
  const std::array taken = {&applications, &publishers, &intermediates, &driverPackages};
  for (std::size_t option = 0; option < kOptions.size(); ++option) {
    Expect(std::ranges::equal(
               *taken.at(option), given.at(option),
               [](const WString& a, const std::wstring& b) { return std::wstring_view(a) == b; }),
           "each value is what was given");
  }
}

void WriteJson(Input& input) {
  std::vector<Item> items;
  for (std::size_t left = input.Number(4); left > 0; --left) {
    items.push_back({.kind = "application",
                     .state = static_cast<State>(input.Number(3)),
                     .name = WString(input.Text(12)),
                     .details = {{"list", WString(input.Text(12)), L""},
                                 {"code", static_cast<DWORD>(input.Number(0xFFFFFFFF)), L""},
                                 {"expired", input.Chance(), L""}}});
  }
  const auto report = nlohmann::json::parse(JsonReport(items));
  Expect(report["state"] == StateName(WorstState(items)), "the state is that of the worst item");
  Expect(report["items"].size() == items.size(), "each item is there");
  for (std::size_t index = 0; index < items.size(); ++index) {
    const Item& item = items.at(index);
    const auto& written = report["items"][index];
    Expect(item.name.empty() ? written["name"].is_null() : written["name"] == ToUtf8(item.name),
           "the name is the item's");
    Expect(written["list"] == ToUtf8(std::get<WString>(item.details.at(0).value)),
           "a text comes back");
    Expect(written["code"] == std::get<DWORD>(item.details.at(1).value), "a number comes back");
    Expect(written["expired"] == std::get<bool>(item.details.at(2).value), "a flag comes back");
  }
}

}  // namespace

std::vector<Target> StatusTargets() {
  return {{"any words", ParseAnything}, {"options", ParseOptions}, {"json", WriteJson}};
}

}  // namespace kelvo::torture
