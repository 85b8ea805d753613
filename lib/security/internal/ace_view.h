#pragma once

#include <windows.h>

#include <cstddef>

namespace kelvo::internal {

// Access lists come from other processes and from disks, and Windows' own functions trust the sizes
// in them. These never read past a list or past an entry: the first two refuse a list that is not
// sound, the others read the entries of a sound one. Every type of entry is read as
// ACCESS_ALLOWED_ACE is laid out: header, mask, SID. An entry may lie at any address, since the
// size of the one before it may be any number.

// Where the SID is in an entry: after header and mask.
constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);

// True when each entry, as long as its AceSize says, lies wholly inside the list's AclSize bytes;
// false also for a null list. Says nothing about what the entries hold.
bool AreAcesInsideAcl(const ACL* acl);

// GetAclInformation with AclSizeInformation, for a list whose entries lie inside it. Returns false
// and leaves `size` alone when they do not (GetLastError returns ERROR_INVALID_ACL) or the call
// fails.
bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size);

// The entry at `index` of a list that QueryAclSize accepted (GetAce), or null when there is none.
void* AceAt(const ACL* acl, DWORD index);

// The header of an entry.
ACE_HEADER HeaderOfAce(const void* ace);

// The SID of an entry, or null when it does not lie wholly inside the entry's AceSize. It need not
// be valid: an object entry has other data there, which equals no SID.
PSID SidOfAce(const void* ace);

}  // namespace kelvo::internal
