#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace kelvo::internal {

// Returns the value that a version resource, as GetFileVersionInfoW reads it, has at `path`
// (VerQueryValueW); empty when there is none. `unitSize` is the size in bytes of what the value's
// length counts: wchar_t for texts, otherwise a byte. The file decides where the value lies and how
// long it is: a value that begins outside `resource` counts as none, a longer one is cut.
std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize);

}  // namespace kelvo::internal
