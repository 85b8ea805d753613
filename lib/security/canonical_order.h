#pragma once

#include <windows.h>

#include <optional>

namespace kelvo {

// Returns the rank of an entry's kind in canonical order: explicit deny 0, explicit object deny 1,
// explicit allow 2, explicit object allow 3; inherited, these four have 4 to 7. Returns nothing for
// other types.
std::optional<DWORD> CanonicalRank(const ACE_HEADER& ace);

// Returns the index at which to insert `ace` into a list in canonical order: before the first entry
// of the same or a higher rank, else at the end. Returns kNoAceIndex when `ace` or an entry before
// that place has no rank, and when the list cannot be read; when GetAce fails, the index at which
// it did. Failures are traced, except exceptions, which return kNoAceIndex without a trace.
DWORD GetACEInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

}  // namespace kelvo
