#pragma once

namespace kelvo {

// Arranges that `target` is replaced by `source`, which is moved there, at the next start of the
// system. Always returns true, whatever came of it. The first argument has no meaning.
//
// With `copyFirst`, a copy of `source` in a new file "wqr..." in the temporary folder is moved
// instead, so that the caller may change or delete `source` at once; when the copy cannot be made,
// nothing is arranged. Nor is it when either path is null.
//
// On NT the system keeps the order (MoveFileExW), which needs an administrator's rights. On Windows
// 9x it is an entry in the section "Rename" of "WININIT.INI" in the Windows directory, with short
// names (GetShortPathNameW); a name that has none of at most 254 characters stands there as it is.
bool ScheduleFileReplace(const void* unused, const wchar_t* source, const wchar_t* target,
                         bool copyFirst);

}  // namespace kelvo
