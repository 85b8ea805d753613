#include <fstream>

#include "tests/support/ascii.h"
#include "tests/support/desktop_scope.h"

// The first thread stores the names of the window station and desktop, starts the thread Work
// and ends. Work waits for the event NAME (first argument), writes the command line and the names
// to a file next to the program, sets the event NAME_done and ends the process with exit code 7.
static std::wstring desktop;

static DWORD WINAPI Work(void* arguments) {
  auto* const words = static_cast<wchar_t**>(arguments);
  const std::wstring event = words[1];
  WaitForSingleObject(OpenEventW(SYNCHRONIZE, FALSE, event.c_str()), 10000);
  const std::wstring text = GetCommandLineW() + (L"|" + desktop);
  std::ofstream((std::wstring(words[0]) + L".txt").c_str()) << kelvo::test::Ascii(text);
  SetEvent(OpenEventW(EVENT_MODIFY_STATE, FALSE, (event + L"_done").c_str()));
  ExitProcess(7);
}

int wmain(int, wchar_t** words) {
  desktop = kelvo::test::CurrentDesktop();
  CreateThread(nullptr, 0, Work, words, 0, nullptr);
  ExitThread(0);
}
