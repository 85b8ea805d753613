#pragma once

#include <windows.h>

#include <optional>

namespace kelvo {

// Returns an ACE's rank in canonical order. For an explicit ACE: deny is 0, object deny is 1, allow
// is 2, and object allow is 3. Inherited ACEs of these four types have the ranks 4 to 7. Returns
// std::nullopt for other types.
std::optional<DWORD> CanonicalRank(const ACE_HEADER& ace);

// Returns the index at which `ace` must be inserted to keep the ACL in canonical order. This is the
// index of the first ACE whose rank is equal to or greater than the rank of `ace`. When there is no
// such ACE, returns the number of ACEs. Returns kNoAceIndex when the ACL is null or malformed
// (access_control_list.h), or when `ace` or an ACE before the insertion index has no rank. When
// GetAce fails, returns the index at which it failed. Traces these failures. If an exception
// occurs, returns kNoAceIndex and traces nothing.
DWORD GetACEInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

}  // namespace kelvo
