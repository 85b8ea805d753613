#include "status/item.h"

#include <algorithm>
#include <string_view>

#include "lib/string/format_text.h"
#include "tool/console_report.h"

namespace kelvo {

const char* StateName(State state) {
  switch (state) {
    case State::kInfo:
      return "info";
    case State::kPresent:
      return "present";
    case State::kAbsent:
      return "absent";
    case State::kUnknown:
      break;
  }
  return "unknown";
}

State WorstState(const std::vector<Item>& items) {
  State worst = State::kInfo;
  for (const Item& item : items) {
    worst = std::max(worst, item.state);
  }
  return worst;
}

Detail TextDetail(const char* key, const wchar_t* label, const WString& text) {
  return {key, text, text.empty() ? text : WString(label) + L" " + text};
}

void AddError(Item& item, const std::string& key, const WString& label, DWORD error) {
  const WString code = FormatText(L"%08lX", error);
  const WString message = FormatSystemMessage(error);
  std::wstring_view text = message;
  text = text.substr(0, text.find_last_not_of(L". \r\n") + 1);
  item.details.push_back(
      {key + "_code", code, label + code + (text.empty() ? L"" : L" ") + WString(text)});
  item.details.push_back({key + "_text", WString(text), {}});
}

Item UnknownItem(const char* kind, const WString& name, DWORD error) {
  Item item{kind, State::kUnknown, name, {}};
  AddError(item, "error", {}, error);
  return item;
}

}  // namespace kelvo
