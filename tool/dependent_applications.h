#pragma once

#include <optional>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The applications that rely on the hands-free service: a list of names separated by ";" in the
// REG_SZ value ApplicationsValueName under HKEY_LOCAL_MACHINE, ServiceParametersKey. It is empty
// exactly when the value does not exist. A value that cannot be read as a text of at most 1,023
// characters counts as empty. Names are taken as they stand.
inline constexpr const wchar_t* ServiceParametersKey =
    L"SYSTEM\\CurrentControlSet\\Services\\Tessalin\\Parameters";
inline constexpr const wchar_t* ApplicationsValueName = L"applications";

// The list as it stands in the registry.
WString ReadApplicationList();

// The names in a list, in their order; runs of ";" count as one.
std::vector<WString> ApplicationsInList(const WString& list);

// Whether removing `name` removes `item`: the whole names are equal regardless of case.
bool IsSameApplication(const WString& item, const wchar_t* name);

// The list with `name` at its end; nothing when the list stays as it is because `name` occurs
// anywhere in it, case-sensitively: as a part of another name too, and an empty name always.
std::optional<WString> ListWithApplication(const WString& list, const wchar_t* name);

// The list without all items equal to `name` regardless of case, the others in their order with one
// ";" between them; empty when none is left.
WString ListWithoutApplication(const WString& list, const wchar_t* name);

// Records `name` in the registry unless the list has it already. Always true; a failing write is
// not told.
bool AddDependentApplication(const wchar_t* name);

// Removes `name` from the list in the registry and reports what is left in one line; removes the
// value with the last name. `noneLeft` tells whether the list is empty now. Always true; a failing
// write or deletion is not told.
bool RemoveDependentApplication(const wchar_t* name, bool& noneLeft);

}  // namespace kelvo
