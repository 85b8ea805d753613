#pragma once

namespace kelvo {

// Returns true when the impersonation token of the calling thread, or the process's token when it
// has none, contains the built-in Administrators group (S-1-5-32-544). Ignores the group's
// attributes: also true for an administrator's filtered token, where the group is deny-only. Always
// true on Windows 9x and when GetVersionExW fails. Returns false when the token cannot be opened
// for TOKEN_QUERY (OpenThreadToken, OpenProcessToken), or when its groups take more than 1,024
// bytes.
bool IsAdmin();

}  // namespace kelvo
