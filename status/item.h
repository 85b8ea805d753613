#pragma once

#include <windows.h>

#include <string>
#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// From best to worst: the state of a list of items is that of its worst one.
enum class State {
  kInfo,     // a fact, which is neither good nor bad
  kPresent,  // it is there
  kAbsent,   // it is not there
  kUnknown,  // it could not be checked
};

// Returns the stable name of a state, as both forms of the report write it.
const char* StateName(State state);

// One fact about an item: scripts find `value` under the stable name `key`, a person reads
// `phrase`. Either may be empty: then that reader gets nothing.
struct Detail {
  std::string key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the report. `kind` is a stable name, in lower case and with "_" for blanks; `name` is
// what was asked for or found, and may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// Returns the state of the worst item, or kInfo for no items.
State WorstState(const std::vector<Item>& items);

// Returns the detail `key` with the phrase "label text", or without a phrase when `text` is empty.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// Adds a Windows error code as two details: eight hexadecimal digits under `key` + "_code", the
// system's message without its full stop and line break under `key` + "_text". The phrase has both
// after `label`.
void AddError(Item& item, const std::string& key, const WString& label, DWORD error);

// Returns an item for something that could not be checked, with the keys "error_code" and
// "error_text".
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
