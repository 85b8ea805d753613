#include "lib/process/session_process.h"

#include "lib/platform/owned.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

TEST_CASE("a program is started, waited for and handed over as asked") {
  const test::ScratchFolder folder;
  const std::wstring program = (folder.Path() / L"a child.exe").wstring();
  std::filesystem::copy_file(test::ProgramPath(L"report_command_line.exe"), program,
                             std::filesystem::copy_options::overwrite_existing);
  const std::wstring name = L"kelvo_test_" + std::to_wstring(GetCurrentProcessId());
  const OwnedKernelObject go(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
  const OwnedKernelObject done(CreateEventW(nullptr, FALSE, FALSE, (name + L"_done").c_str()));
  const std::wstring arguments = name + L" \"two  words\" \\\"quoted\\\" \"\" x ";
  // Waiting comes last: a program that still ends would keep the folder from being removed.
  for (const bool wait : {false, true}) {
    for (const bool handsOver : {true, false}) {
      wait ? SetEvent(go.get()) : ResetEvent(go.get());
      OwnedKernelObject process;
      REQUIRE(LaunchInUserSession(program.c_str(), arguments.c_str(), wait,
                                  handsOver ? process.Receive() : nullptr));
      CHECK(WaitForSingleObject(done.get(), 0) == (wait ? WAIT_OBJECT_0 : WAIT_TIMEOUT));
      SetEvent(go.get());
      CHECK((wait || WaitForSingleObject(done.get(), 10000) == WAIT_OBJECT_0));
      CHECK((!handsOver || WaitForSingleObject(process.get(), wait ? 0 : 10000) == WAIT_OBJECT_0));
      const std::string line = test::ReadBytes(program + L".txt");
      CHECK(std::wstring(reinterpret_cast<const wchar_t*>(line.data()), line.size() / 2) ==
            L"\"" + program + L"\" " + arguments);
      std::filesystem::remove(program + L".txt");
    }
  }
}

namespace {

std::string events;

// Records what is done with a token; 0x7701 comes from the session, 0x7702 is its duplicate.
bool Note(const std::string& event, HANDLE token) {
  const auto number = reinterpret_cast<std::uintptr_t>(token) - 0x7700;
  const bool isOurs = number == 1 || number == 2;
  events += isOurs ? event + std::to_string(number) : "";
  return isOurs;
}

}  // namespace

TEST_CASE("the road to a process depends on Windows, session, token and desktop") {
  auto* const console = +[]() -> DWORD { return 5; };
  auto* const query = +[](ULONG session, HANDLE* token) -> BOOL {
    *token = reinterpret_cast<HANDLE>(session == 5 ? 0x7701ULL : 0);
    return session == 5;
  };
  const auto closed = KELVO_REPLACE_IMPORT(CloseHandle, [](auto original, HANDLE handle) {
    return Note("close", handle) ? TRUE : original(handle);
  });
  const auto started = KELVO_REPLACE_IMPORT(CreateProcessAsUserW, [](auto, HANDLE token, auto...) {
    return Note("start", token) ? FALSE : TRUE;
  });
  const auto startedAsCaller = KELVO_REPLACE_IMPORT(CreateProcessW, [](auto...) {
    events += "caller";
    return FALSE;
  });
  // Windows 5.0 or 5.1, the caller's session, whether the console's can be told and a token be
  // duplicated, the caller's desktop, and what happens.
  using Road = std::tuple<DWORD, DWORD, bool, bool, const wchar_t*, std::string>;
  for (const auto& [minor, session, tells, duplicates, desktop, happens] :
       {Road{1, 5, true, true, nullptr, "close1start2close2"},
        Road{1, 3, true, false, nullptr, "start1close1"},
        Road{1, 5, false, true, L"kelvo other", "caller"},
        Road{0, 3, true, true, L"kelvo other", "caller"}, Road{0, 0, true, true, nullptr, "caller"},
        // RunAsUser, which leaves its token open.
        Road{0, 0, true, true, L"kelvo other", "start2"}}) {
    const test::DesktopScope scope(nullptr, desktop);
    const test::ReplacedExport one("WTSGetActiveConsoleSessionId",
                                   tells ? reinterpret_cast<void*>(console) : nullptr);
    const test::ReplacedExport two("WTSQueryUserToken", reinterpret_cast<void*>(query));
    const auto version = KELVO_REPLACE_IMPORT(GetVersionExW, [=](auto, OSVERSIONINFOW* asked) {
      *asked = {sizeof(*asked), 5, minor, 0, VER_PLATFORM_WIN32_NT, L""};
      return TRUE;
    });
    const auto own = KELVO_REPLACE_IMPORT(ProcessIdToSessionId, [=](auto, auto, DWORD* id) {
      *id = session;
      return TRUE;
    });
    const auto duplicate = KELVO_REPLACE_IMPORT(
        DuplicateTokenEx, [=](auto, auto, DWORD access, auto, int level, int type, HANDLE* token) {
          CHECK((access == 0x2000000 && level == 3 && type == 1));
          *token = duplicates ? reinterpret_cast<HANDLE>(0x7702ULL) : nullptr;
          return duplicates;
        });
    events.clear();
    CHECK_FALSE(LaunchInUserSession(L"program", nullptr, true, nullptr));
    CHECK(events == happens);
  }
}

}  // namespace kelvo
