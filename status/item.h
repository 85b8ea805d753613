#pragma once

#include <windows.h>

#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// From best to worst: what a list of items comes to is the state of its worst one.
enum class State {
  kTold,     // a fact that nobody asked to be there
  kPresent,  // it is there
  kAbsent,   // it is not there
  kUnknown,  // it could not be looked at
};

// The stable name of a state, as both forms of the answer write it.
const char* StateName(State state);

// One thing known about an item: `value` under the stable name `key` for scripts, `phrase` for a
// person, who does not see it when that is empty.
struct Detail {
  const char* key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the answer. `kind` is one of the stable names, in lower case and with "_" for blanks;
// `name` is what was asked for or found and may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// The state of the worst item; kTold for none.
State WorstState(const std::vector<Item>& items);

// The detail `key` with a text that is shown after `label`.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// A Windows error code as the tool writes it: eight hexadecimal digits, then the system's text
// without its full stop and line break, when there is one.
WString DescribeError(DWORD error);

// An item that could not be looked at, with the code and its text.
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
