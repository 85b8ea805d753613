#include "lib/platform/system_library.h"

#include <array>
#include <cwchar>

namespace kelvo {

OwnedModule LoadSystemLibrary(const wchar_t* name) {
  std::array<wchar_t, std::size_t{2} * MAX_PATH> path{};
  const UINT length = GetSystemDirectoryW(path.data(), MAX_PATH);
  const std::size_t nameLength = std::wcslen(name);
  if (length == 0) {
    return {};
  }
  if (length >= MAX_PATH || nameLength >= MAX_PATH - 1) {
    SetLastError(ERROR_FILENAME_EXCED_RANGE);
    return {};
  }
  path[length] = L'\\';
  // The rest of the array is still zero, so the path is NUL-terminated.
  std::wmemcpy(path.data() + length + 1, name, nameLength);
  return OwnedModule(LoadLibraryW(path.data()));
}

}  // namespace kelvo
