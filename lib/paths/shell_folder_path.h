#pragma once

#include <windows.h>

#include <span>

namespace kelvo {

// Writes the path of a shell folder, known by its registry value name such as "Personal" or
// "AppData", with a trailing backslash to `out` (260 characters) and returns true. Looks below
// "Software\Microsoft\Windows\CurrentVersion\Explorer" in "User Shell Folders" of the user, then of
// the machine, then in "Shell Folders" of both. The first string that is not empty is taken as it
// is stored, without expanding environment variables; one that does not fit `out` with its
// backslash counts as empty.
//
// When none of the four has one, `out` receives GetModuleDirectory(module)
// (lib/paths/module_directory.h), and the function returns whether that is not empty.
bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName);

}  // namespace kelvo
