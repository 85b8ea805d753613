#include <fstream>

#include "tests/support/ascii.h"
#include "tests/support/desktop_scope.h"

// mutex NAME        makes a mutex after a while and keeps it for a while
// close THREAD      posts WM_CLOSE to a thread
// report EVENT ...  waits for an event, writes its command line and desktop into a file beside
//                   itself, tells so by the event "..._done" and ends with 7
int wmain(int count, wchar_t** words) {
  const std::wstring verb = count > 2 ? words[1] : L"";
  if (verb == L"close") {
    PostThreadMessageW(wcstoul(words[2], nullptr, 10), WM_CLOSE, 0, 0);
  } else if (verb == L"mutex") {
    Sleep(300);
    CreateMutexW(nullptr, FALSE, words[2]);
    Sleep(1000);
  } else if (verb == L"report") {
    WaitForSingleObject(OpenEventW(SYNCHRONIZE, FALSE, words[2]), 10000);
    const std::wstring text = GetCommandLineW() + (L"|" + kelvo::test::CurrentDesktop());
    std::ofstream((std::wstring(words[0]) + L".txt").c_str()) << kelvo::test::Ascii(text);
    SetEvent(OpenEventW(EVENT_MODIFY_STATE, FALSE, (std::wstring(words[2]) + L"_done").c_str()));
    return 7;
  }
  return 0;
}
