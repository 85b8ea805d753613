#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Paths that begin with "\\?\" may be longer than MAX_PATH, up to 32,767 characters. After that
// prefix, Windows resolves neither "/" nor "." and "..". A null path counts as empty.

// Resolves `path` with GetFullPathNameW and adds the prefix: "C:\x" becomes "\\?\C:\x",
// "\\server\share\x" and "//server/share/x" become "\\?\UNC\server\share\x". Returns `path`
// unchanged when it is empty, begins with "\\?\", "\\.\" or "\??\", is not fully qualified ("C:x",
// "\x", "x"), names a device ("C:\NUL"), cannot be resolved, or would be too long.
WString AddLongPathPrefix(const wchar_t* path);

// Removes the prefix: "\\?\C:\x" becomes "C:\x", and "\\?\UNC\server\share", with "UNC" in any
// letter case, becomes "\\server\share". Returns every other path unchanged, including volume paths
// ("\\?\Volume{...}") and "\\?\UNC\.\pipe\x", which would otherwise become a device path.
WString RemoveLongPathPrefix(const wchar_t* path);

// Returns true when `path` begins with "\\?\".
bool HasLongPathPrefix(const wchar_t* path);

}  // namespace kelvo
