#include "tool/library_search.h"

#include <windows.h>

#include "lib/platform/module.h"

namespace kelvo {

void NarrowLibrarySearch() {
  auto* const setDirectories =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), SetDefaultDllDirectories);
  if (setDirectories == nullptr ||
      setDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32) == FALSE) {
    SetDllDirectoryW(L"");
  }
}

}  // namespace kelvo
