#pragma once

#include <windows.h>

#include <optional>

namespace kelvo {

// Returns an ACE's rank in canonical order: explicit deny 0, explicit object deny 1, explicit allow
// 2, explicit object allow 3. When inherited, the same four have ranks 4 to 7. Returns nothing for
// other types.
std::optional<DWORD> CanonicalRank(const ACE_HEADER& ace);

// Returns the index at which to insert `ace` into an ACL in canonical order: before the first ACE
// of the same or a higher rank, else at the end. Returns kNoAceIndex when the ACL cannot be read,
// or when `ace` or an ACE before that index has no rank. When GetAce fails, returns the index at
// which it failed. Failures are traced; an exception returns kNoAceIndex without a trace.
DWORD GetACEInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

}  // namespace kelvo
