#pragma once

#include <optional>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The list of applications that use the hands-free service: names separated by ";" in the REG_SZ
// value ApplicationsValueName of the key ServiceParametersKey, under HKEY_LOCAL_MACHINE. If the
// value does not exist, the list is empty. Names are not checked: adding the name ";" to an empty
// list stores an empty string.
//
// A value of the type REG_EXPAND_SZ is also accepted. Its environment variables are expanded. If
// the expanded list has 260 characters or more, the list is truncated. The next write stores the
// expanded, possibly truncated list as REG_SZ. If the value has any other type or more than
// kMaxRegistryStringSize bytes, RegistryReadString (lib/registry/registry_string.h) cannot read it,
// and the list counts as empty.
inline constexpr const wchar_t* ServiceParametersKey =
    L"SYSTEM\\CurrentControlSet\\Services\\Tessalin\\Parameters";
inline constexpr const wchar_t* ApplicationsValueName = L"applications";

// Returns the list from the registry.
WString ReadApplicationList();

// Returns the names in a list, in order. Consecutive ";" count as one separator.
std::vector<WString> ApplicationsInList(const WString& list);

// Returns whether `item`, one of the names in a list, equals `name` when letter case is ignored
// (CompareNoCase). ListWithoutApplication removes the items for which this function returns true.
bool IsSameApplication(const WString& item, const wchar_t* name);

// Returns the list with `name` appended and without any ";" at either end. Returns nullopt when the
// text of the list already contains `name`, even as part of a longer name. The search is
// case-sensitive. An empty `name` is always found.
std::optional<WString> ListWithApplication(const WString& list, const wchar_t* name);

// Returns the list without the items that equal `name` (IsSameApplication). The other items
// keep their order, with one ";" between them. Returns an empty string when no item remains.
WString ListWithoutApplication(const WString& list, const wchar_t* name);

// Adds `name` to the list in the registry. Leaves the list unchanged if it already contains `name`,
// that is, if ListWithApplication returns nullopt. Always returns true, even when the write fails.
bool AddDependentApplication(const wchar_t* name);

// Removes `name` from the list in the registry. When no name remains, deletes the value and sets
// `noneLeft` to true; otherwise, sets `noneLeft` to false. Prints one line that shows the remaining
// names or says that there are none. Always returns true. A failure to write or delete the value is
// ignored: the line and `noneLeft` are the same as on success.
bool RemoveDependentApplication(const wchar_t* name, bool& noneLeft);

}  // namespace kelvo
