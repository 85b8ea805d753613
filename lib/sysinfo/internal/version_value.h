#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace kelvo::internal {

// Returns the value at `path` (VerQueryValueW) in a version resource that GetFileVersionInfoW has
// read; empty when there is no such value. VerQueryValueW returns the value's length in units of
// `unitSize` bytes: sizeof(wchar_t) for a string, 1 for any other value. The file decides where the
// value begins and ends: a value that begins outside `resource` counts as missing, and a value that
// ends outside is cut at the end of `resource`.
std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize);

}  // namespace kelvo::internal
