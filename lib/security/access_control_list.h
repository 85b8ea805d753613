#pragma once

#include <windows.h>

namespace kelvo {

// A list with an entry that reaches past its end counts as one that cannot be read. Failures are
// traced (lib/trace/trace_sink.h); an exception counts as a failure but is not traced.

// Means "no index". AddAce appends the entry when it is given this index.
constexpr DWORD kNoAceIndex = MAXDWORD;

// Returns the index of the last entry that equals `ace` (EqualACE), or kNoAceIndex when there is
// none or the list cannot be read.
DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

// Appends all entries of `source`, in their order, to an initialized list with room for them.
// Returns FALSE when either list cannot be read or AddAce refuses an entry, as when it does not
// fit; entries appended before that stay. A `source` without entries is copied with success,
// whatever `destination` is.
BOOL CopyACL(ACL* destination, const ACL* source);

// Returns the size in bytes of a list that holds the entries of `acl` (none for null), an allow or
// deny entry for each SID, and the given ACEs. Counts the header of a given `acl` as well as the
// new one. Either array may be null when its count is 0. Returns 0 when the list cannot be read or
// a SID is invalid.
DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount);

}  // namespace kelvo
