#include "lib/process/interactive_desktop.h"
#include "lib/process/run_as_user.h"
#include "lib/process/session_process.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/testing.h"

static std::string calls;

// Notes each call, and lets it through.
#define NOTE(function, note)                                \
  REPLACE(function, [](auto original, auto... parameters) { \
    calls += note;                                          \
    return original(parameters...);                         \
  })

// Notes what is done with a token: 1 comes from the session, 2 is its duplicate.
static bool IsOurs(const char* note, HANDLE token) {
  const auto number = reinterpret_cast<std::uintptr_t>(token) - 0x7700;
  calls += number == 1 || number == 2 ? note + std::to_string(number) : "";
  return number == 1 || number == 2;
}

TEST_CASE("a program runs on the interactive desktop, is waited for and handed over as asked") {
  const ScratchFolder folder;
  const std::wstring program = folder / L"a child.exe";
  CopyFileW(ProgramPath(L"test_child.exe").c_str(), program.c_str(), TRUE);
  const std::wstring name = L"kelvo_test_" + std::to_wstring(GetCurrentProcessId());
  const OwnedKernelObject go(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
  const OwnedKernelObject done(CreateEventW(nullptr, FALSE, FALSE, (name + L"_done").c_str()));
  const std::wstring arguments = L"report " + name + L" \"two  words\" \\\"quoted\\\" \"\" x ";
  // Where a call is made from, and what RunAsUser does; the first is for LaunchInUserSession.
  const std::tuple<const wchar_t*, const wchar_t*, std::string> places[] = {
      {nullptr, nullptr, "wait "},
      {nullptr, nullptr, "create free wait "},
      {nullptr, L"kelvo desktop", "create free station desktop wait close close "},
      {L"kelvo process test", L"Default", "station create free station desktop wait close close "}};
  // Waiting comes last: a program that still ends would keep the folder from being removed.
  for (int round = 0; round < 16; ++round) {
    CAPTURE(round);
    const auto& [station, desktop, steps] = places[round / 4];
    const bool waits = round % 4 >= 2;
    const DesktopScope scope(station, desktop);
    const std::wstring before = CurrentDesktop();
    waits ? SetEvent(go.get()) : ResetEvent(go.get());
    std::wstring command = L"\"" + program + L"\" " + arguments;
    OwnedKernelObject process;
    HANDLE* const slot = round % 2 == 0 ? process.Receive() : nullptr;
    {
      REPLACE(SetSecurityDescriptorDacl, [](auto original, auto to, BOOL has, ACL* dacl, BOOL) {
        CHECK((has && dacl == nullptr));
        return original(to, has, dacl, FALSE);
      });
      NOTE(CreateProcessAsUserW, "create ");
      NOTE(HeapFree, "free ");
      NOTE(SetProcessWindowStation, "station ");
      NOTE(SetThreadDesktop, "desktop ");
      NOTE(WaitForSingleObject, "wait ");
      NOTE(CloseDesktop, "close ");
      NOTE(CloseWindowStation, "close ");
      REQUIRE((round < 4 ? LaunchInUserSession(program.c_str(), arguments.c_str(), waits, slot)
                         : RunAsUser(command.data(), waits, slot) == TRUE));
    }
    const std::string expected = std::string(steps).erase(steps.find("wait"), waits ? 0 : 5);
    CHECK((std::exchange(calls, "") == expected || round < 4));
    CHECK(CurrentDesktop() == before);
    CHECK(WaitForSingleObject(done.get(), 0) == (waits ? WAIT_OBJECT_0 : WAIT_TIMEOUT));
    SetEvent(go.get());
    CHECK((waits || WaitForSingleObject(done.get(), 10000) == WAIT_OBJECT_0));
    DWORD exitCode = slot == nullptr ? 7 : 0;
    WaitForSingleObject(process.get(), waits ? 0 : 10000);
    GetExitCodeProcess(process.get(), &exitCode);
    CHECK(exitCode == 7);
    CHECK(ReadBytes(program + L".txt") ==
          Ascii(L"\"" + program + L"\" " + arguments + L"|WinSta0\\Default"));
    std::filesystem::remove(program + L".txt");
  }
}

TEST_CASE("letter case matters where a process is started, not where one asks") {
  using Row = std::tuple<const wchar_t*, const wchar_t*, BOOL, int>;
  const auto cases = std::to_array(
      {Row(L"WinSta0", L"Default", TRUE, 0), Row(L"WINSTA0", L"DEFAULT", TRUE, 1),
       Row(L"W\u0130nSta0", L"Default", FALSE, 1), Row(L"WinSta0", L"Default2", FALSE, 0)});
  for (const auto& [station, desktop, isInteractive, moves] : cases) {
    const wchar_t* names[] = {station, desktop};
    int asked = 0, moved = 0;
    REPLACE(GetUserObjectInformationW, [&](auto, auto, auto, void* text, auto, auto* needed) {
      lstrcpyW(static_cast<wchar_t*>(text), names[asked++ % 2]);
      return (*needed = 520) != 0;
    });
    REPLACE(OpenWindowStationW, [&](auto...) { return ++moved, nullptr; });
    CHECK(IsOnInteractiveDesktop() == isInteractive);
    CHECK((!RunAsUser(std::wstring(L"no such program").data(), FALSE, nullptr) && moved == moves));
  }
}

TEST_CASE("the road to a process depends on Windows, session, token and desktop") {
  auto* const tell = +[]() -> DWORD { return 5; };
  const ReplacedExport query(
      "WTSQueryUserToken", +[](ULONG session, HANDLE* token) -> BOOL {
        *token = reinterpret_cast<HANDLE>(session == 5 ? 0x7701ULL : 0);
        return session == 5;
      });
  REPLACE(CloseHandle, [](auto original, HANDLE handle) {
    return IsOurs("close", handle) ? TRUE : original(handle);
  });
  REPLACE(CreateProcessAsUserW, [](auto, auto token, auto...) { return !IsOurs("start", token); });
  REPLACE(CreateProcessW, [](auto...) { return calls += "caller", FALSE; });
  // Windows 5.0 or 5.1, the caller's session, whether the console's can be told and a token be
  // duplicated, the caller's desktop, and what happens. RunAsUser leaves its token open.
  using Road = std::tuple<DWORD, DWORD, bool, bool, const wchar_t*, std::string>;
  for (const auto& [minor, ownSession, tells, duplicates, desktop, happens] :
       {Road{1, 5, true, true, nullptr, "close1start2close2"},
        Road{1, 3, true, false, nullptr, "start1close1"},
        Road{1, 5, false, true, L"kelvo other", "caller"},
        Road{0, 3, true, true, L"kelvo other", "caller"}, Road{0, 0, true, true, nullptr, "caller"},
        Road{0, 0, true, true, L"kelvo other", "start2"}}) {
    const DesktopScope scope(nullptr, desktop);
    const ReplacedExport console("WTSGetActiveConsoleSessionId", tells ? tell : nullptr);
    const auto windows = PretendWindows(2, 5, minor);
    REPLACE(ProcessIdToSessionId, [=](auto, auto, DWORD* id) { return *id = ownSession, TRUE; });
    REPLACE(DuplicateTokenEx,
            [=](auto, auto, DWORD access, auto, int level, int type, HANDLE* token) {
              CHECK((access == 0x2000000 && level == 3 && type == 1));
              *token = duplicates ? reinterpret_cast<HANDLE>(0x7702ULL) : nullptr;
              return duplicates;
            });
    CHECK_FALSE(LaunchInUserSession(L"program", nullptr, true, nullptr));
    CHECK(std::exchange(calls, "") == happens);
  }
}
