#pragma once

#include <windows.h>

#include <cstddef>

namespace kelvo::internal {

// ACLs come from other processes and from disks, and Windows' own functions trust the sizes in
// them. These functions never read past an ACL or an ACE: the first two refuse a malformed ACL, the
// others read the ACEs of a well-formed one. Every type of ACE is read with the layout of
// ACCESS_ALLOWED_ACE: header, mask, SID. An ACE may be at any address, since the size of the one
// before it may be any number.

// The offset of the SID in an ACE, after header and mask.
constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);

// Returns true when every ACE, with the size in its AceSize, is wholly inside the ACL's AclSize
// bytes. Returns false for null, too. Does not check what the ACEs contain.
bool AreAcesInsideAcl(const ACL* acl);

// Calls GetAclInformation (AclSizeInformation) for an ACL whose ACEs are inside it. Returns false
// and leaves `size` unchanged when they are not (GetLastError returns ERROR_INVALID_ACL) or the
// call fails.
bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size);

// Returns the ACE at `index` of an ACL that QueryAclSize accepted (GetAce), or null when there is
// none.
void* AceAt(const ACL* acl, DWORD index);

// Returns an ACE's header.
ACE_HEADER HeaderOfAce(const void* ace);

// Returns an ACE's SID, or null when it is not wholly inside the ACE's AceSize bytes. It need not
// be valid: an object ACE has other data there, which equals no SID.
PSID SidOfAce(const void* ace);

}  // namespace kelvo::internal
