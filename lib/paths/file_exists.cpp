#include "lib/paths/file_exists.h"

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

namespace {

struct FileSearch {
  using Handle = HANDLE;
  static Handle None() { return INVALID_HANDLE_VALUE; }
  static void Close(Handle handle) { FindClose(handle); }
};

}  // namespace

bool FileExists(const wchar_t* path) {
  WIN32_FIND_DATAW found{};
  return path != nullptr && static_cast<bool>(Owned<FileSearch>(FindFirstFileW(path, &found)));
}

}  // namespace kelvo
