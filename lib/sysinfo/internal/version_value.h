#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace kelvo::internal {

// Returns the value at `path` (VerQueryValueW) in a version resource that GetFileVersionInfoW has
// read; empty when there is no such value. VerQueryValueW returns the value's length in units of
// `unitSize` bytes: sizeof(wchar_t) for a string, 1 for any other value. The file's contents decide
// where the value is and how long it is, so both are checked: a value that begins outside
// `resource` counts as missing, and a value that extends past the end of `resource` is cut there.
std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize);

}  // namespace kelvo::internal
