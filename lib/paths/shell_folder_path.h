#pragma once

#include <windows.h>

#include <span>

namespace kelvo {

// Writes the path of a shell folder, with a trailing backslash, to `out` (260 characters) and
// returns true. `valueName` is the name of the folder's registry value, such as "Personal" or
// "AppData". Looks for a value with this name in four keys, in this order:
//   1. HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders
//   2. HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders
//   3. HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders
//   4. HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders
// The path is the first value that is not empty. A value counts as empty when it is missing or
// cannot be read, is not a string (REG_SZ or REG_EXPAND_SZ), or is too long for `out` (including
// the backslash and a NUL). Environment variables in the path are not expanded.
//
// When all four values are empty, writes the result of GetModuleDirectory(module)
// (lib/paths/module_directory.h) to `out`. Returns true if this result is not empty, otherwise
// false.
bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName);

}  // namespace kelvo
