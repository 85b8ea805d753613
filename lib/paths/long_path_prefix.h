#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// A path that begins with the prefix "\\?\" may be longer than MAX_PATH, up to 32,767 characters.
// In such a path, Windows does not treat "/" as a separator and does not resolve "." and "..". All
// functions below treat a null path as an empty path.

// Resolves `path` with GetFullPathNameW and adds the prefix: "C:\x" becomes "\\?\C:\x";
// "\\server\share\x" and "//server/share/x" become "\\?\UNC\server\share\x". Returns `path`
// unchanged when it is empty, begins with "\\?\", "\\.\" or "\??\", is not fully qualified ("C:x",
// "\x", "x"), names a device ("C:\NUL"), cannot be resolved, or would be too long with the prefix.
WString AddLongPathPrefix(const wchar_t* path);

// Removes the prefix: "\\?\C:\x" becomes "C:\x", and "\\?\UNC\server\share", with "UNC" in any
// letter case, becomes "\\server\share". Returns every other path unchanged, for example a volume
// path ("\\?\Volume{...}"). "\\?\UNC\.\pipe\x" is also returned unchanged, because without the
// prefix it would be a device path.
WString RemoveLongPathPrefix(const wchar_t* path);

// Returns true when `path` begins with "\\?\".
bool HasLongPathPrefix(const wchar_t* path);

}  // namespace kelvo
