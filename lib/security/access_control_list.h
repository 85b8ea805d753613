#pragma once

#include <windows.h>

namespace kelvo {

// A list whose entries do not lie wholly inside it counts as one that GetAclInformation refuses.
// Failures are traced, except exceptions, which count as failures without a trace.

// What stands for "no index". AddAce takes it for "at the end".
constexpr DWORD kNoAceIndex = MAXDWORD;

// The index of the last entry that equals `ace` (EqualACE), kNoAceIndex when there is none and when
// the list cannot be read.
DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

// Appends all entries of `source`, in their order, to an initialized list with room for them.
// Returns FALSE when the source cannot be read or an entry does not fit; what was appended until
// then stays.
BOOL CopyACL(ACL* destination, const ACL* source);

// The bytes that a list needs for the entries of `acl` (null: none), one access entry for each of
// the SIDs and the given ACEs, and a header; `acl`'s own header is counted in addition. Either
// array may be null when its count is 0. Returns 0 when the list cannot be read or a SID is
// invalid.
DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount);

}  // namespace kelvo
