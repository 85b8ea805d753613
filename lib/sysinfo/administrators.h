#pragma once

namespace kelvo {

// Returns true when the effective token contains the built-in Administrators group (S-1-5-32-544).
// The effective token is the calling thread's impersonation token or, when the thread has none, the
// process's token. Ignores the group's attributes, and so also returns true for an administrator's
// filtered token, in which the group is deny-only. Always returns true on Windows 9x and when
// GetVersionExW fails. Returns false when the token cannot be opened for TOKEN_QUERY
// (OpenThreadToken, OpenProcessToken), or when its groups take more than 1,024 bytes.
bool IsAdmin();

}  // namespace kelvo
