#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Paths that begin with "\\?\" may be longer than MAX_PATH, up to 32,767 characters. Behind that
// prefix Windows resolves neither "/" nor "." and "..". A null path counts as an empty one.

// Makes "\\?\C:\x" of "C:\x" and "\\?\UNC\server\share\x" of "\\server\share\x" or
// "//server/share/x", after GetFullPathNameW has resolved it. Returns `path` as it is when it is
// empty, begins with "\\?\", "\\.\" or "\??\", is not fully qualified ("C:x", "\x", "x"), names a
// device ("C:\NUL"), cannot be resolved, or would be too long. Throws std::bad_alloc when memory
// runs out.
WString AddLongPathPrefix(const wchar_t* path);

// Makes "C:\x" of "\\?\C:\x" and "\\server\share" of "\\?\UNC\server\share", with "UNC" in any
// letter case. Returns every other path as it is, also those of volumes ("\\?\Volume{...}") and
// devices. Throws std::bad_alloc when memory runs out.
WString RemoveLongPathPrefix(const wchar_t* path);

// True when `path` begins with "\\?\".
bool HasLongPathPrefix(const wchar_t* path);

}  // namespace kelvo
