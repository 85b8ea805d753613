#pragma once

namespace kelvo {

// Schedules a move of `source` to `target` at the next restart of Windows, replacing `target`.
// Always returns true, even on failure. Ignores the first argument.
//
// With `copyFirst`, `source` is copied to a new file "wqr..." in the temporary folder and the copy
// is moved instead, so the caller may change or delete `source` at once. Until the restart, the
// copy stays there, where the account's other programs can change it. A copy that cannot be
// scheduled is deleted. Nothing is scheduled when the copy cannot be made, when either path is
// null, or when `source` is empty.
//
// On NT, this is MoveFileExW, which needs administrative rights. On Windows 9x, it is an entry in
// the section "Rename" of "WININIT.INI" in the Windows directory, with short names
// (GetShortPathNameW). A name without a short form of at most 254 characters is written as it is.
bool ScheduleFileReplace(const void* unused, const wchar_t* source, const wchar_t* target,
                         bool copyFirst);

}  // namespace kelvo
