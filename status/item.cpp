#include "status/item.h"

#include <algorithm>
#include <string_view>

#include "lib/string/format_text.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

WString SystemText(DWORD error) {
  const WString message = FormatSystemMessage(error);
  const std::wstring_view text = message;
  return WString(text.substr(0, text.find_last_not_of(L". \r\n") + 1));
}

WString ErrorCode(DWORD error) { return FormatText(L"%08lX", error); }

}  // namespace

const char* StateName(State state) {
  switch (state) {
    case State::kTold:
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
  State worst = State::kTold;
  for (const Item& item : items) {
    worst = std::max(worst, item.state);
  }
  return worst;
}

Detail TextDetail(const char* key, const wchar_t* label, const WString& text) {
  return {key, text, FormatText(L"%s %s", label, text.c_str())};
}

WString DescribeError(DWORD error) {
  const WString text = SystemText(error);
  return text.empty() ? ErrorCode(error) : ErrorCode(error) + L" " + text;
}

Item UnknownItem(const char* kind, const WString& name, DWORD error) {
  return {kind,
          State::kUnknown,
          name,
          {{"error_code", ErrorCode(error), DescribeError(error)},
           {"error_text", SystemText(error), {}}}};
}

}  // namespace kelvo
