#include <fstream>

#include "tests/support/ascii.h"
#include "tests/support/desktop_scope.h"

// Waits for the event that its first argument names, writes its command line and desktop into a
// file beside itself, reports that by the event "..._done" and ends with 7.
int wmain(int, wchar_t** words) {
  const std::wstring event = words[1];
  WaitForSingleObject(OpenEventW(SYNCHRONIZE, FALSE, event.c_str()), 10000);
  const std::wstring text = GetCommandLineW() + (L"|" + kelvo::test::CurrentDesktop());
  std::ofstream((std::wstring(words[0]) + L".txt").c_str()) << kelvo::test::Ascii(text);
  SetEvent(OpenEventW(EVENT_MODIFY_STATE, FALSE, (event + L"_done").c_str()));
  return 7;
}
