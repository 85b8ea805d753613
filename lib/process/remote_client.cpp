#include "lib/process/remote_client.h"

#include <windows.h>
#include <wtsapi32.h>

#include "lib/platform/guarded_call.h"
#include "lib/platform/module.h"
#include "lib/string/compare_no_case.h"
#include "lib/sysinfo/computer_name.h"

namespace kelvo {

std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity) {
  const OwnedModule library(LoadLibraryW(L"wtsapi32.dll"));
  auto* const query = KELVO_FIND_FUNCTION(library.get(), WTSQuerySessionInformationW);
  auto* const freeMemory = KELVO_FIND_FUNCTION(library.get(), WTSFreeMemory);
  if (query == nullptr || freeMemory == nullptr || buffer == nullptr || capacity < 1) {
    return -1;
  }
  std::int32_t answer = -1;
  wchar_t* name = nullptr;
  GuardedCall([&] {
    DWORD size = 0;
    if (query(WTS_CURRENT_SERVER_HANDLE, WTS_CURRENT_SESSION, WTSClientName, &name, &size) ==
            FALSE ||
        name == nullptr) {
      return;
    }
    lstrcpynW(buffer, name, capacity);
    if (*buffer != L'\0' && CompareNoCase(buffer, GetComputerNetbiosName().c_str()) != 0) {
      answer = 0;
    }
  });
  // This second guarded call frees the name even after an exception in the first call.
  GuardedCall([&] {
    if (name != nullptr) {
      freeMemory(name);
    }
  });
  return answer;
}

}  // namespace kelvo
