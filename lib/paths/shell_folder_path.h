#pragma once

#include <windows.h>

#include <span>

namespace kelvo {

// Writes the path of a shell folder, known by its registry value name such as "Personal" or
// "AppData", into `out` (260 characters) with a trailing backslash and returns true. Looks under
// "Software\Microsoft\Windows\CurrentVersion\Explorer" for "User Shell Folders" of the user, then
// of the machine, then for "Shell Folders" of both; the first text that is not empty counts, as it
// is stored: environment references stay. A text too long for `out` with its backslash counts as
// empty.
//
// Where no place has one, `out` gets GetModuleDirectory(module), and the answer is whether that is
// not empty.
bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName);

}  // namespace kelvo
