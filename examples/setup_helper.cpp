// Does tasks that setup programs often need. Each task is a command:
//   setup_helper read HKEY_CURRENT_USER\Software\App\Setting
//     prints the string in a registry value, or "(not a string)"
//   setup_helper grant FILE SID
//     lets the account with this SID read a file and write its data
//   setup_helper start PROGRAM ["ARGUMENTS"]
//     starts a program as the user of the console session, or as the caller if that user's token
//     is unavailable; waits until the program ends, and returns the program's exit code
//   setup_helper ready PROGRAM MUTEX
//     starts a program and waits, for at most ten seconds, until the mutex Global\MUTEX exists
// "read", "grant" and "ready" return 0 for success and 1 for failure. "start" returns 1 if the
// program cannot be started. For a wrong command line, the exit code is also 1.

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <string>

#include "lib/platform/owned.h"
#include "lib/process/process_readiness.h"
#include "lib/process/session_process.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_value_path.h"
#include "lib/security/file_access.h"
#include "lib/string/visible_text.h"
#include "lib/ui/utf8_output.h"

using kelvo::WString;

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = 1;

int Print(const WString& text, int exitCode) {
  const DWORD device = exitCode == kSuccess ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE;
  return kelvo::WriteUtf8(device, kelvo::ToVisibleUtf8(text) + "\n") ? exitCode : kFailure;
}

int Read(const wchar_t* path, const wchar_t* /*unused*/) {
  HKEY root = nullptr;
  WString key;
  WString name;
  if (!kelvo::ParseRegistryValuePath(path, root, key, name)) {
    return Print(L"This is not the path of a registry value", kFailure);
  }
  if (!kelvo::RegistryValueExists(root, key.c_str(), name.c_str())) {
    return Print(L"There is no such value", kFailure);
  }
  return Print(kelvo::RegistryReadString(root, key.c_str(), name.c_str(), L"(not a string)"),
               kSuccess);
}

int Grant(const wchar_t* file, const wchar_t* sid) {
  constexpr DWORD kRights = FILE_GENERIC_READ | FILE_WRITE_DATA | FILE_APPEND_DATA;
  return kelvo::AddFileAccessRights(file, sid, kRights) != FALSE
             ? Print(L"Granted", kSuccess)
             : Print(L"The ACL could not be changed", kFailure);
}

int Start(const wchar_t* program, const wchar_t* arguments) {
  kelvo::OwnedKernelObject process;
  if (!kelvo::LaunchInUserSession(program, arguments, true, process.Receive())) {
    return Print(L"The program could not be started", kFailure);
  }
  DWORD exitCode = kFailure;
  GetExitCodeProcess(process.get(), &exitCode);
  return static_cast<int>(exitCode);
}

int StartAndWaitUntilReady(const wchar_t* program, const wchar_t* mutex) {
  constexpr DWORD kTimeoutMs = 10'000;
  switch (kelvo::StartProcessAndWaitForMutex(program, nullptr, false, mutex, kTimeoutMs)) {
    case kelvo::kMutexAppeared:
      return Print(L"Ready", kSuccess);
    case kelvo::kNotStarted:
      return Print(L"The program could not be started", kFailure);
    case kelvo::kClosedWhileWaiting:
    case kelvo::kTimedOut:
      break;
  }
  return Print(L"The program is not ready after ten seconds", kFailure);
}

struct Command {
  const wchar_t* name;
  int (*run)(const wchar_t* first, const wchar_t* second);
};

constexpr Command kCommands[] = {
    {L"read", Read}, {L"grant", Grant}, {L"start", Start}, {L"ready", StartAndWaitUntilReady}};

}  // namespace

extern "C" int wmain(int count, wchar_t** arguments) {
  if (count < 3) {
    return Print(L"setup_helper read|grant|start|ready ...", kFailure);
  }
  const auto* const command = std::ranges::find_if(
      kCommands, [&](const Command& known) { return std::wcscmp(known.name, arguments[1]) == 0; });
  return command != std::end(kCommands) ? command->run(arguments[2], count > 3 ? arguments[3] : L"")
                                        : Print(L"There is no such command", kFailure);
}
