#pragma once

#include <windows.h>

#include <cstddef>

namespace kelvo::internal {

// ACLs may come from other processes or from disk, and Windows' own functions trust the sizes that
// an ACL contains. The functions below never read past the end of an ACL or an ACE: the first two
// return false for a malformed ACL, and the others must be called only for the ACEs of a
// well-formed ACL. Every type of ACE is read with the layout of ACCESS_ALLOWED_ACE: header, mask,
// SID. An ACE may be at any address, even an unaligned one, because the ACE before it may have any
// size.

// The offset of the SID in an ACE, after the header and the mask.
constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);

// Returns true when all ACEs, each of AceSize bytes, are inside the AclSize bytes of the ACL.
// Returns false when they are not, when an AceSize is less than the size of an ACE_HEADER, or when
// `acl` is null. Does not check the contents of the ACEs.
bool AreAcesInsideAcl(const ACL* acl);

// Calls GetAclInformation (AclSizeInformation) when AreAcesInsideAcl returns true. Returns false
// and leaves `size` unchanged when AreAcesInsideAcl returns false (the last error is then
// ERROR_INVALID_ACL) or GetAclInformation fails.
bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size);

// Returns the ACE at `index` (GetAce), or null when there is none. Call this function only after
// QueryAclSize has returned true for `acl`.
void* AceAt(const ACL* acl, DWORD index);

// Returns an ACE's header.
ACE_HEADER HeaderOfAce(const void* ace);

// Returns an ACE's SID, or null when the SID is not wholly inside the ACE's AceSize bytes. An
// object ACE has other data at kSidOffset, and this function treats that data as a SID. That data
// never equals the SID of an account.
PSID SidOfAce(const void* ace);

}  // namespace kelvo::internal
