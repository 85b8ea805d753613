#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace kelvo::internal {

// Returns the value at `path` (VerQueryValueW) in a version resource that GetFileVersionInfoW has
// read. Returns an empty span when there is no such value. `unitSize` is the size, in bytes, of the
// units in which VerQueryValueW returns the value's length: sizeof(wchar_t) for a string, 1 for any
// other value. In a damaged file, a value may seem to begin or end outside `resource`. A value that
// begins outside `resource` counts as missing. A value that ends outside `resource` is truncated at
// the end of `resource`.
std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize);

}  // namespace kelvo::internal
