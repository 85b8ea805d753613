#pragma once

#include <windows.h>

#include <array>
#include <optional>

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Moveable memory from GlobalAlloc. ReadFixedFileVersion locks the memory (GlobalLock). The
// memory stays locked until it is freed.
struct LockedGlobalMemory {
  using Handle = HGLOBAL;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) {
    GlobalUnlock(handle);
    GlobalFree(handle);
  }
};
using OwnedLockedGlobalMemory = Owned<LockedGlobalMemory>;

// Major, minor, build and revision.
using FileVersionNumbers = std::array<int, 4>;

struct FixedFileVersion {
  // Memory for the file's whole version resource. Null when GetFileVersionInfoSizeW returns 0 or
  // when memory runs out.
  OwnedLockedGlobalMemory memory;
  // The numbers in the VS_FIXEDFILEINFO block; std::nullopt when the file has no such block or the
  // block cannot be read.
  std::optional<FileVersionNumbers> numbers;
};

// Reads the version resource of a file (GetFileVersionInfoW) and finds the numbers in the
// resource's VS_FIXEDFILEINFO block.
FixedFileVersion ReadFixedFileVersion(const wchar_t* path);

}  // namespace kelvo::internal
