#pragma once

namespace kelvo {

// Schedules a move of `source` to `target` at the next restart of Windows, replacing `target`.
// Always returns true, even on failure. Ignores the first argument. Schedules nothing when either
// path is null or `source` is empty.
//
// With `copyFirst`, `source` is copied to a new file "wqr..." in the temporary folder and the copy
// is moved instead, so the caller may change or delete `source` at once. Until the restart, the
// copy stays in the temporary folder, where other programs of the same account can change it. If
// the move cannot be scheduled, the copy is deleted. If the copy cannot be made, nothing is
// scheduled.
//
// On NT, the move is scheduled with MoveFileExW, which needs administrative rights. On Windows 9x,
// an entry with the short forms of both paths (GetShortPathNameW) is written to the section
// "Rename" of "WININIT.INI" in the Windows directory. A path that has no short form of at most 254
// characters is written unchanged.
bool ScheduleFileReplace(const void* unused, const wchar_t* source, const wchar_t* target,
                         bool copyFirst);

}  // namespace kelvo
