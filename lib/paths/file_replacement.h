#pragma once

namespace kelvo {

// Asks Windows to move `source` to `target` during the next restart. The move replaces an existing
// `target`. Always returns true, even on failure. Ignores the first argument. Schedules nothing
// when either path is null or `source` is empty.
//
// If `copyFirst` is true, `source` is copied to a new file "wqr*.tmp" in the temporary folder, and
// the copy is moved instead. The caller may then change or delete `source` as soon as this function
// returns. Until the restart, the copy stays in the temporary folder, where other programs of the
// same account can change it. If the move cannot be scheduled, the copy is deleted. If the copy
// cannot be made, nothing is scheduled.
//
// On NT, the move is scheduled with MoveFileExW, which needs administrative rights. On Windows 9x,
// an entry with the short forms of both paths (GetShortPathNameW) is written to the section
// "Rename" of "WININIT.INI" in the Windows directory. If GetShortPathNameW fails for a path, or if
// the short form has more than 254 characters, the path is written unchanged. GetShortPathNameW
// fails, for example, when the file does not exist.
bool ScheduleFileReplace(const void* unused, const wchar_t* source, const wchar_t* target,
                         bool copyFirst);

}  // namespace kelvo
