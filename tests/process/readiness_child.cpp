// readiness_child mutex NAME   makes a mutex after a while and keeps it for a while
// readiness_child close ID     posts WM_CLOSE to a thread

#include <windows.h>

#include <string_view>

int wmain(int count, wchar_t** words) {
  if (count == 3 && words[1] == std::wstring_view(L"close")) {
    PostThreadMessageW(wcstoul(words[2], nullptr, 10), WM_CLOSE, 0, 0);
  } else if (count == 3) {
    Sleep(300);
    CreateMutexW(nullptr, FALSE, words[2]);
    Sleep(1000);
  }
  return 0;
}
