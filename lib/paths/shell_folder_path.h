#pragma once

#include <windows.h>

#include <span>

namespace kelvo {

// Writes the path of a shell folder, with a trailing backslash, to `out` (260 characters) and
// returns true. `valueName` is the name of the folder's registry value, such as "Personal" or
// "AppData". Reads that value in the key "User Shell Folders" and then in "Shell Folders", each
// first in HKEY_CURRENT_USER and then in HKEY_LOCAL_MACHINE. Both keys are below
// "Software\Microsoft\Windows\CurrentVersion\Explorer". Uses the first string that is not empty,
// and does not expand environment variables in it. A string counts as empty if, with its
// trailing backslash and a NUL, it does not fit in `out`.
//
// When every string is missing or counts as empty, writes the result of GetModuleDirectory(module)
// (lib/paths/module_directory.h) to `out`. Returns true if this result is not empty, otherwise
// false.
bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName);

}  // namespace kelvo
