#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>

// Waits for the event that its first argument names, writes its command line into a file beside
// itself, tells so by the event "..._done" and ends with 7.
int wmain(int /*count*/, wchar_t** arguments) {
  const std::wstring name = arguments[1];
  WaitForSingleObject(OpenEventW(SYNCHRONIZE, FALSE, name.c_str()), 10000);
  std::FILE* const file = _wfopen((std::wstring(arguments[0]) + L".txt").c_str(), L"wb");
  std::fwrite(GetCommandLineW(), sizeof(wchar_t), std::wcslen(GetCommandLineW()), file);
  std::fclose(file);
  SetEvent(OpenEventW(EVENT_MODIFY_STATE, FALSE, (name + L"_done").c_str()));
  return 7;
}
