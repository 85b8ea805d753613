#pragma once

#include <windows.h>

#include <span>

namespace kelvo {

// Writes the path of a shell folder, with a trailing backslash, to `out` (260 characters) and
// returns true. `valueName` is the folder's value name in the registry, such as "Personal" or
// "AppData". Looks in "User Shell Folders" of the user and then of the machine, then in "Shell
// Folders" of both, all below "Software\Microsoft\Windows\CurrentVersion\Explorer". Takes the first
// string that is not empty, as stored: environment variables are not expanded. A string that does
// not fit in `out` with its backslash counts as empty.
//
// When there is no such string, writes GetModuleDirectory(module) (lib/paths/module_directory.h) to
// `out` and returns whether that is not empty.
bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName);

}  // namespace kelvo
