#pragma once

#include <windows.h>

namespace kelvo {

// An ACL with an ACE that extends past its end counts as unreadable. Failures are traced
// (lib/trace/trace_sink.h); an exception is a failure that is not traced.

// Means "no index". AddAce, given this index, appends the ACE.
constexpr DWORD kNoAceIndex = MAXDWORD;

// Returns the index of the last ACE that equals `ace` (EqualACE), or kNoAceIndex when there is none
// or the ACL is unreadable.
DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

// Appends all ACEs of `source`, in their order, to an initialized ACL with room for them. Returns
// FALSE when either ACL is unreadable or AddAce refuses an ACE, such as one that does not fit; ACEs
// appended before that stay. For a `source` without ACEs, returns TRUE, whatever `destination` is.
BOOL CopyACL(ACL* destination, const ACL* source);

// Returns the size in bytes of an ACL that holds the ACEs of `acl` (none for null), an allow or
// deny ACE for each SID, and the given ACEs. When `acl` is given, counts its header as well as the
// new one. Either array may be null when its count is 0. Returns 0 when the ACL is unreadable or a
// SID is invalid.
DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount);

}  // namespace kelvo
