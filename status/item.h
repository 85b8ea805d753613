#pragma once

#include <windows.h>

#include <string>
#include <variant>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The states of an item. For WorstState, each state is worse than the states before it.
enum class State {
  kInfo,     // a fact that is neither good nor bad
  kPresent,  // the thing is there
  kAbsent,   // the thing is not there
  kUnknown,  // the thing could not be checked
};

// Returns the name of a state. The name is stable, and is the same in the text report and in the
// JSON report.
const char* StateName(State state);

// One fact about an item. The JSON report shows `value` under the stable name `key`; the text
// report shows `phrase`. If `key` is empty, the detail is not in the JSON report. If `phrase` is
// empty, the detail is not in the text report.
struct Detail {
  std::string key;
  std::variant<bool, DWORD, WString> value;
  WString phrase;
};

// One line of the text report, and one object in the array "items" of the JSON report. `kind` is a
// stable name in lower case that has "_" between its words; the text report shows a space for each
// "_". `name` is the name or path of the thing that the item describes: as given on the command
// line, as fixed in the program (such as a certificate store's name), or as found on the computer.
// `name` may be empty.
struct Item {
  const char* kind;
  State state;
  WString name;
  std::vector<Detail> details;
};

// Returns the worst state of the items, or kInfo when there are no items.
State WorstState(const std::vector<Item>& items);

// Returns a detail with the value `text`. Its phrase is `label`, a space and `text`. When `text` is
// empty, the phrase is empty.
Detail TextDetail(const char* key, const wchar_t* label, const WString& text);

// Adds two details for the Windows error code `error`:
//   - `key` + "_code": the value is the code in eight hexadecimal digits. The phrase is `label`
//     immediately followed by the code. If the system has a message, a space and the message
//     follow.
//   - `key` + "_text": the value is the system's message. The phrase is empty.
// Full stops, spaces and line breaks at the end of the message are removed.
void AddError(Item& item, const std::string& key, const WString& label, DWORD error);

// Returns an item for something that could not be checked, with the details "error_code" and
// "error_text".
Item UnknownItem(const char* kind, const WString& name, DWORD error);

}  // namespace kelvo
