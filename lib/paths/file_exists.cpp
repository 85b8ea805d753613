#include "lib/paths/file_exists.h"

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

bool FileExists(const wchar_t* path) {
  WIN32_FIND_DATAW found{};
  return path != nullptr && static_cast<bool>(OwnedFileSearch(FindFirstFileW(path, &found)));
}

}  // namespace kelvo
