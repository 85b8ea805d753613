#pragma once

namespace kelvo {

// The first parameter of both is ignored; `version` is major, minor, build and revision.

// True when the browser's "Shdocvw.dll" in the system directory has this version or a higher one
// (CompareFileVersion).
bool IsIEVersionAtLeast(const void* ignored, const int (&version)[4]);

// The name of the release with exactly this version, up to 5.5. Stands in one process-wide buffer
// of 256 characters, which the next call overwrites; a version without a name leaves there what the
// last one with a name gave, an empty text at first.
const wchar_t* GetIEVersionName(const void* ignored, const int (&version)[4]);

}  // namespace kelvo
