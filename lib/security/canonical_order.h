#pragma once

#include <windows.h>

#include <optional>

namespace kelvo {

// Where an entry's kind stands in a list in canonical order: explicit deny 0, explicit object deny
// 1, explicit allow 2, explicit object allow 3, the same four inherited 4 to 7. Other types have
// no rank.
std::optional<DWORD> CanonicalRank(const ACE_HEADER& ace);

// The index at which `ace` goes into a list in canonical order: in front of the first entry of the
// same or a higher rank, else at the end. Returns kNoAceIndex when the new entry or one that is met
// has no rank and when the list cannot be read; the index that was reached when GetAce fails there.
// Failures are traced, except exceptions, which return kNoAceIndex without a trace.
DWORD GetACEInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

}  // namespace kelvo
