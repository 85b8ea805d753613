#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace kelvo::internal {

// Returns the value at `path` (VerQueryValueW) in a version resource that GetFileVersionInfoW has
// read; empty when there is none. The value's length counts units of `unitSize` bytes: wchar_t for
// strings, otherwise a byte. The file decides where the value is and how long it is: a value that
// begins outside `resource` counts as missing, and one that extends past it is cut.
std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize);

}  // namespace kelvo::internal
