#pragma once

#include <windows.h>

#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// From best to worst: the state of a list of items is that of its worst one.
enum class State {
  kTold,     // a fact, which is neither good nor bad
  kPresent,  // it is there
  kAbsent,   // it is not there
  kUnknown,  // it could not be read
};

// Returns the stable name of a state, as text and JSON write it.
const char* StateName(State state);

// One fact about an item: scripts find `value` under the stable name `key`, a person reads
// `phrase`, or nothing when that is empty.
struct Detail {
  const char* key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the answer. `kind` is a stable name, in lower case and with "_" for blanks; `name` is
// what was asked for or found, and may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// Returns the state of the worst item, or kTold for no items.
State WorstState(const std::vector<Item>& items);

// Returns the detail `key` with a string that a person sees after `label`.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// Returns a Windows error code as the tool writes it: eight hexadecimal digits, then the system's
// message, when there is one, without its full stop and line break.
WString DescribeError(DWORD error);

// Returns an item for something that could not be read, with the error code and its message.
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
