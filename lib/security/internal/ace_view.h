#pragma once

#include <windows.h>

#include <cstddef>

namespace kelvo::internal {

// ACLs may come from other processes or from disk, and Windows' own functions trust the sizes that
// an ACL contains. AreAcesInsideAcl and QueryAclSize check these sizes, and return false for a
// malformed ACL. These two functions read only the ACL's header, which must be readable, and the
// AclSize bytes of the ACL.
//
// Every type of ACE is read with the layout of ACCESS_ALLOWED_ACE: header, mask, SID. An ACE may be
// at any address, even an unaligned one, because the ACE before it may have any size.

// The offset of the SID in an ACE, after the header and the mask.
constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);

// Returns true when all ACEs, each of AceSize bytes, are inside the AclSize bytes of the ACL.
// Returns false when they are not, when AclSize is less than the size of an ACL header, when an
// AceSize is less than the size of an ACE_HEADER, or when `acl` is null. Does not check the
// contents of the ACEs.
bool AreAcesInsideAcl(const ACL* acl);

// Stores the ACL's size information in `size` (GetAclInformation with AclSizeInformation) and
// returns true. When AreAcesInsideAcl returns false, does not call GetAclInformation, sets the last
// error to ERROR_INVALID_ACL and returns false. When GetAclInformation fails, returns false. In
// both cases, leaves `size` unchanged.
bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size);

// Returns the ACE at `index` (GetAce), or null when there is none. Call this function only after
// QueryAclSize has returned true for `acl`.
void* AceAt(const ACL* acl, DWORD index);

// Returns an ACE's header. All bytes of the header must be readable.
ACE_HEADER HeaderOfAce(const void* ace);

// Returns an ACE's SID, or null when the SID is not wholly inside the ACE's AceSize bytes. Always
// reads the ACE's header. Otherwise, never reads past these bytes. The header and all these bytes
// must be readable. An object ACE has other data at kSidOffset. This function treats that data as a
// SID. If the object ACE's Flags are valid, such a SID never equals the SID of an account.
PSID SidOfAce(const void* ace);

}  // namespace kelvo::internal
