#include "tool/library_search.h"

#include <windows.h>

#include "lib/paths/file_exists.h"
#include "lib/paths/module_path.h"
#include "lib/platform/module.h"
#include "lib/sysinfo/system_directories.h"

namespace kelvo {

namespace {

// Returns the path of the file `name` in the program's folder, even if there is no such file.
// Returns an empty string when the program's own path is unknown.
WString OwnCopyPath(const wchar_t* name) {
  const WString program = ReadModulePath(nullptr);
  const std::size_t directoryLength = program.rfind(L"\\") + 1;
  return directoryLength > 0 ? program.substr(0, directoryLength) + name : WString();
}

}  // namespace

void NarrowLibrarySearch() {
  auto* const setDirectories =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), SetDefaultDllDirectories);
  if (setDirectories == nullptr ||
      setDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32) == FALSE) {
    SetDllDirectoryW(L"");
  }
}

WString LibraryPath(const wchar_t* name) {
  const WString ownCopy = OwnCopyPath(name);
  return FileExists(ownCopy.c_str()) ? ownCopy : WString(GetSystemDirectoryPath()) + name;
}

}  // namespace kelvo
