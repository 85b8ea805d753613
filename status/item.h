#pragma once

#include <windows.h>

#include <string>
#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// In order from best to worst; WorstState uses this order.
enum class State {
  kInfo,     // a fact that is neither good nor bad
  kPresent,  // the thing is there
  kAbsent,   // the thing is not there
  kUnknown,  // the thing could not be checked
};

// Returns the stable name of a state, as both forms of the report write it.
const char* StateName(State state);

// One fact about an item. The JSON report has `value` under the stable name `key`; the text report
// has `phrase`. A detail without a key is not in the JSON report; one without a phrase is not in
// the text report.
struct Detail {
  std::string key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the report. `kind` is a stable name in lower case, with "_" for blanks. `name` is the
// name or path that was asked for or found; it may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// Returns the state of the worst item, or kInfo for no items.
State WorstState(const std::vector<Item>& items);

// Returns a detail with the phrase "label text", or with an empty phrase when `text` is empty.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// Adds two details for a Windows error code: `key` + "_code" has eight hexadecimal digits, `key` +
// "_text" the system's message without its full stop and line break. The phrase consists of
// `label`, code and message.
void AddError(Item& item, const std::string& key, const WString& label, DWORD error);

// Returns an item for something that could not be checked, with the keys "error_code" and
// "error_text".
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
