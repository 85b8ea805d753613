#include "lib/process/process_readiness.h"

#include "lib/process/waiting_messages.h"
#include "lib/string/format_text.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("a started program is waited for until its mutex, a WM_CLOSE or the time-out") {
  const std::wstring child = test::ProgramPath(L"readiness_child.exe");
  const WString name = FormatText(L"kelvo test %u", GetCurrentProcessId());
  const auto start = [&](const WString& arguments, bool pump, DWORD timeoutMs) {
    return StartProcessAndWaitForMutex(child.c_str(), arguments.c_str(), pump, name.c_str(),
                                       timeoutMs);
  };
  CHECK(StartProcessAndWaitForMutex(L"not there", L"", false, name.c_str(), 10000) == -1);
  CHECK(start(L"", false, 150) == -3);
  CHECK(start(L"", true, 150) == -3);
  CHECK(start(FormatText(L"close %u", GetCurrentThreadId()), true, 10000) == -2);
  CHECK(start(FormatText(L"mutex \"Global\\%s\"", name.c_str()), false, 0) == -3);
  CHECK(start(L"", true, 10000) == 0);  // the mutex of the one before
  PostThreadMessageW(GetCurrentThreadId(), WM_CLOSE, 0, 0);
  PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
  CHECK(PumpWaitingMessages() == 16);
  CHECK(GetQueueStatus(QS_POSTMESSAGE) != 0);
  CHECK(PumpWaitingMessages() == 0);
}

TEST_CASE("before Windows 2000 the mutex is looked up by its plain and whole name") {
  const auto nt4 = KELVO_REPLACE_IMPORT(GetVersionExW, [](auto, OSVERSIONINFOW* record) {
    *record = {276, 4, 0, 1381, VER_PLATFORM_WIN32_NT, L""};
    return TRUE;
  });
  const test::ReplacedExport noTerminalServer("VerifyVersionInfoA", nullptr);
  const WString name(600, L'n');
  const auto open = KELVO_REPLACE_IMPORT(OpenMutexW, [&](auto, DWORD, BOOL, auto asked) {
    return asked == name ? CreateEventW(nullptr, FALSE, FALSE, nullptr) : nullptr;
  });
  CHECK(StartProcessAndWaitForMutex(test::ProgramPath(L"readiness_child.exe").c_str(), nullptr,
                                    false, name.c_str(), 10000) == 0);
}

}  // namespace kelvo
