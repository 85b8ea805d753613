#pragma once

#include <windows.h>

namespace kelvo {

// An ACL is malformed when AclSize is less than the size of an ACL header, when an ACE extends past
// the end of the ACL, when an ACE is smaller than an ACE_HEADER, or when GetAclInformation fails.
// The functions below trace each failure (lib/trace/trace_sink.h), unless an exception caused the
// failure.

// Means "no index". When AddAce receives this value as the index, it appends the ACE.
constexpr DWORD kNoAceIndex = MAXDWORD;

// Returns the index of the last ACE that equals `ace` (EqualACE). Returns kNoAceIndex when no ACE
// equals `ace`, or when the ACL is null or malformed.
DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace);

// Appends all ACEs of `source`, in their order, to `destination`, which must be an initialized ACL
// with enough room. Returns TRUE on success. Returns FALSE when either ACL is null or malformed, or
// when AddAce fails, for example because an ACE does not fit. ACEs that were appended before the
// failure stay in `destination`. However, when `source` is well-formed and has no ACEs, always
// returns TRUE, even if `destination` is null or malformed.
BOOL CopyACL(ACL* destination, const ACL* source);

// Returns the size in bytes of a new ACL that holds the ACEs of `acl` (which may be null), an allow
// or deny ACE for each SID in `sids`, and the ACEs in `aces`. If `acl` is not null, the result is
// larger than necessary by the size of an ACL header, because it also counts the header of `acl`.
// Either array may be null when its count is 0. Returns 0 when `acl` is malformed or a SID is
// invalid.
DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount);

}  // namespace kelvo
