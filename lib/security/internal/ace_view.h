#pragma once

#include <windows.h>

namespace kelvo::internal {

// Access lists come from other processes and from disks, and Windows' own functions follow the
// sizes in them. With these nothing is read past a list or past an entry: the first two refuse a
// list that is not sound, the others read the entries of a sound one. Every type of entry is taken
// for the layout of ACCESS_ALLOWED_ACE: header, mask, SID from byte 8.

// True when each entry, as long as its AceSize says, lies wholly inside the list's AclSize bytes;
// false also for a null list. Says nothing about what the entries hold.
bool AreAcesInsideAcl(const ACL* acl);

// GetAclInformation with AclSizeInformation, for a list whose entries lie inside it. Returns false
// and leaves `size` alone when they do not (GetLastError gives ERROR_INVALID_ACL) or the call
// fails.
bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size);

// The entry at `index` of a list that QueryAclSize accepted (GetAce), or null when there is none.
ACCESS_ALLOWED_ACE* AceAt(const ACL* acl, DWORD index);

// The SID at byte 8 of an entry, or null when it does not lie wholly inside the entry's AceSize. It
// need not be valid: an object entry has other data there, which equals no SID.
PSID SidOfAce(const ACCESS_ALLOWED_ACE* ace);

}  // namespace kelvo::internal
