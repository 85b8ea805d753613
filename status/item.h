#pragma once

#include <windows.h>

#include <string>
#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The states in order from best to worst; WorstState uses this order.
enum class State {
  kInfo,     // a fact that is neither good nor bad
  kPresent,  // the thing is there
  kAbsent,   // the thing is not there
  kUnknown,  // the thing could not be checked
};

// Returns the stable name of a state, which both the text report and the JSON report use.
const char* StateName(State state);

// One fact about an item. The JSON report has `value` under the stable name `key`; the text report
// has `phrase`. A detail without a key is not in the JSON report, and a detail without a phrase is
// not in the text report.
struct Detail {
  std::string key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the text report, and one object in the array "items" of the JSON report. `kind` is a
// stable name in lower case, with "_" for blanks. `name` is the name or path that was asked for or
// found; it may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// Returns the state of the worst item, or kInfo for no items.
State WorstState(const std::vector<Item>& items);

// Returns a detail with the value `text`. Its phrase is `label`, a blank and `text`, or is empty
// when `text` is empty.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// Adds two details for a Windows error code. The detail `key` + "_code" has the code in eight
// hexadecimal digits; its phrase is `label`, the code and the system's message. The detail `key` +
// "_text" has this message and no phrase. The message's full stop and line break are removed.
void AddError(Item& item, const std::string& key, const WString& label, DWORD error);

// Returns an item for something that could not be checked, with the details "error_code" and
// "error_text".
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
