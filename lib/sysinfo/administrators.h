#pragma once

namespace kelvo {

// True when the token of the calling thread, or of the process when the thread has none, lists the
// built-in Administrators group (S-1-5-32-544), whatever the group's attributes say; always true on
// Windows 9x. Needs TOKEN_QUERY. False when the token cannot be read, as when its groups take more
// than 1,024 bytes.
bool IsAdmin();

}  // namespace kelvo
