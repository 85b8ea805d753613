#pragma once

namespace kelvo {

// Returns true when the token of the calling thread, or of the process when the thread has none,
// lists the built-in Administrators group (S-1-5-32-544). The group's attributes do not count: true
// also for an administrator whose token is filtered, where the group only denies access. Always
// true on Windows 9x, and when GetVersionExW fails. Opens the token for TOKEN_QUERY
// (OpenThreadToken, OpenProcessToken); returns false when that fails and when the token's groups
// take more than 1,024 bytes.
bool IsAdmin();

}  // namespace kelvo
