#pragma once

namespace kelvo {

// Schedules `source` to be moved to `target`, replacing it, at the next start of Windows. Always
// returns true, even when that fails. The first argument is not used.
//
// With `copyFirst`, `source` is copied to a new file "wqr..." in the temporary folder, and the copy
// is moved instead, so that the caller may change or delete `source` at once. Until the restart it
// lies there, where the account's other programs can change it; it is deleted when it cannot be
// scheduled. When the copy cannot be made, when either path is null, and when `source` is empty,
// nothing is scheduled.
//
// On NT this is MoveFileExW, which needs administrative rights. On Windows 9x it is an entry in the
// section "Rename" of "WININIT.INI" in the Windows directory, with short names (GetShortPathNameW);
// a name without a short form of at most 254 characters is written as it is.
bool ScheduleFileReplace(const void* unused, const wchar_t* source, const wchar_t* target,
                         bool copyFirst);

}  // namespace kelvo
