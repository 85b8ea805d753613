#pragma once

#include <optional>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// The applications that rely on the hands-free service: a list of names separated by ";" in the
// REG_SZ value ApplicationsValueName under HKEY_LOCAL_MACHINE, ServiceParametersKey. Without that
// value the list is empty. Names are used as they are given: the name ";" stores an empty value.
//
// A value that RegistryReadString (lib/registry/registry_string.h) cannot read counts as empty: one
// of more than kMaxRegistryStringSize bytes or of another type. A REG_EXPAND_SZ value is expanded;
// an expansion of 260 characters or more is cut, and the next change writes the list back cut.
inline constexpr const wchar_t* ServiceParametersKey =
    L"SYSTEM\\CurrentControlSet\\Services\\Tessalin\\Parameters";
inline constexpr const wchar_t* ApplicationsValueName = L"applications";

// Returns the list that the registry holds.
WString ReadApplicationList();

// Returns the names in a list, in their order; runs of ";" count as one.
std::vector<WString> ApplicationsInList(const WString& list);

// Returns whether removing `name` removes `item`: whether the whole names are equal regardless of
// letter case.
bool IsSameApplication(const WString& item, const wchar_t* name);

// Returns the list with `name` at its end, or nothing when `name` occurs in it already, in the same
// letter case, even as part of another name. An empty name always occurs.
std::optional<WString> ListWithApplication(const WString& list, const wchar_t* name);

// Returns the list without any item that equals `name` regardless of letter case, the others in
// their order with one ";" between them; empty when none is left.
WString ListWithoutApplication(const WString& list, const wchar_t* name);

// Adds `name` to the list in the registry unless it occurs there (ListWithApplication). Always
// returns true, even when the write fails.
bool AddDependentApplication(const wchar_t* name);

// Removes `name` from the list in the registry, and the value with the last name, and reports what
// is left in one line. `noneLeft` receives whether the list is empty then. Always returns true,
// even when the write or the deletion fails.
bool RemoveDependentApplication(const wchar_t* name, bool& noneLeft);

}  // namespace kelvo
