#include "lib/process/interactive_desktop.h"
#include "lib/process/run_as_user.h"
#include "lib/process/session_process.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/shown_arguments.h"
#include "tests/support/testing.h"

static std::string calls;

// Adds `note` to `calls` and calls the original function. Then sets the last error, which
// RunAsUser must reset to 0 before it calls OpenDesktopW or CreateProcessAsUserW.
#define NOTE(function, note)                           \
  REPLACE(function, [](auto original, auto... given) { \
    calls += note;                                     \
    const auto result = original(given...);            \
    SetLastError(ERROR_GEN_FAILURE);                   \
    return result;                                     \
  })

// Notes a use of token 1 (the session user's) or 2 (a duplicate). Returns false for other handles.
static bool NoteIfOurs(const char* note, HANDLE token) {
  const auto number = reinterpret_cast<std::uintptr_t>(token) - 0x7700;
  calls += number == 1 || number == 2 ? note + std::to_string(number) : "";
  return number == 1 || number == 2;
}

TEST_CASE("RunAsUser, LaunchInUserSession: run programs on WinSta0; can wait and return a handle") {
  const ScratchFolder folder;
  const std::wstring program = folder / L"a child.exe";
  CopyFileW(ProgramPath(L"test_child.exe").c_str(), program.c_str(), TRUE);
  const std::wstring name = L"kelvo_test_" + std::to_wstring(GetCurrentProcessId());
  const OwnedKernelObject go(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
  const OwnedKernelObject done(CreateEventW(nullptr, FALSE, FALSE, (name + L"_done").c_str()));
  const std::wstring arguments = name + L" \"two  words\" \\\"quoted\\\" \"\" x ";
  const std::wstring command = L"\"" + program + L"\" " + arguments;
  // Columns: the caller's station and desktop, RunAsUser's calls before and after the wait. The
  // first row is for LaunchInUserSession. The 0 before 393216 prevents handle inheritance.
  const std::tuple<const wchar_t*, const wchar_t*, std::string, std::string> places[] = {
      {nullptr, nullptr, "", ""},
      {nullptr, nullptr, "create free ", ""},
      {nullptr, L"kelvo desktop", "create free station desktop ", "close close "},
      {L"kelvo process test", L"Default",
       "open('WinSta0', 0, 393216) station open('Default', 0, 0, 393216) create free station "
       "desktop ",
       "close close "}};
  // Opens a stand-in: other programs use WinSta0 too, and RunAsUser would change WinSta0's DACL.
  REPLACE(OpenWindowStationW, [](auto original, auto name, auto... rest) {
    calls += ShownCall("open", name, rest...) + " ";
    return original(L"kelvo stand-in", rest...);
  });
  NOTE(OpenDesktopW, GetLastError() == 0 ? ShownCall("open", given...) + " " : "with old error ");
  NOTE(CreateProcessAsUserW, GetLastError() == 0 ? "create " : "with old error ");
  NOTE(HeapFree, "free ");
  NOTE(SetProcessWindowStation, "station ");
  NOTE(SetThreadDesktop, "desktop ");
  NOTE(WaitForSingleObject, std::get<1>(std::tuple(given...)) == INFINITE ? "wait " : "timed ");
  NOTE(CloseDesktop, "close ");
  NOTE(CloseWindowStation, "close ");
  for (const auto& [station, desktop, callsBefore, callsAfter] : places) {
    // The rounds that wait are last: the folder cannot be deleted while a child is running.
    for (const auto& [waits, takesHandle] :
         {std::pair{false, true}, {false, false}, {true, true}, {true, false}}) {
      INFO(callsBefore, "; waits: ", waits, ", takes the handle: ", takesHandle);
      const bool moves = station != nullptr;
      const DesktopScope standIn(moves ? L"kelvo stand-in" : nullptr, moves ? L"Default" : nullptr);
      const DesktopScope scope(station, desktop);
      const std::wstring before = CurrentDesktop();
      waits ? SetEvent(go.get()) : ResetEvent(go.get());
      OwnedKernelObject process;
      HANDLE* const slot = takesHandle ? process.Receive() : nullptr;
      calls.clear();
      if (callsBefore.empty()) {
        REQUIRE(LaunchInUserSession(program.c_str(), arguments.c_str(), waits, slot));
        CHECK((calls.find("wait ") != std::string::npos) == waits);
      } else {
        REQUIRE(RunAsUser(std::wstring(command).data(), waits, slot) == TRUE);
        CHECK(calls == callsBefore + (waits ? "wait " : "") + callsAfter);
      }
      CHECK(CurrentDesktop() == before);
      CHECK(WaitForSingleObject(done.get(), 0) == (waits ? WAIT_OBJECT_0 : WAIT_TIMEOUT));
      SetEvent(go.get());
      CHECK((waits || WaitForSingleObject(done.get(), 10000) == WAIT_OBJECT_0));
      DWORD exitCode = takesHandle ? 0 : 7;
      WaitForSingleObject(process.get(), waits ? 0 : 10000);
      GetExitCodeProcess(process.get(), &exitCode);
      CHECK(exitCode == 7);
      CHECK(ReadBytes(program + L".txt") == Ascii(command + L"|WinSta0\\Default"));
      std::filesystem::remove(program + L".txt");
    }
  }
}

TEST_CASE("IsOnInteractiveDesktop: ignores letter case, unlike RunAsUser") {
  const std::tuple<const wchar_t*, const wchar_t*, DWORD, BOOL, int> rows[] = {
      {L"WinSta0", L"Default", 520, TRUE, 0},
      {L"WINSTA0", L"DEFAULT", 520, TRUE, 1},
      {L"W\u0130nSta0", L"Default", 520, FALSE, 1},
      {L"WinSta0", L"Default2", 520, FALSE, 0},
      {L"WinSta0", L"Default", 521, FALSE, 0}};
  for (const auto& [station, desktop, needed, isInteractive, moves] : rows) {
    INFO(station, ", ", desktop, ", ", needed);
    const wchar_t* names[] = {station, desktop};
    int asked = 0, moved = 0;
    REPLACE(GetUserObjectInformationW, [&](auto, auto, auto, void* text, auto, auto* size) {
      lstrcpyW(static_cast<wchar_t*>(text), names[asked++ % 2]);
      *size = needed;
      return TRUE;
    });
    REPLACE(OpenWindowStationW, [&](auto...) {
      ++moved;
      return nullptr;
    });
    CHECK(IsOnInteractiveDesktop() == isInteractive);
    asked = 0;
    HANDLE untouched = &moved;
    CHECK_FALSE(RunAsUser(std::wstring(L"no such program").data(), FALSE, &untouched));
    CHECK_BOTH(untouched == &moved, moved == moves);
  }
}

TEST_CASE("LaunchInUserSession: picks a function by Windows version, session, token and desktop") {
  // Even when they fail, the simulated functions store a handle, which must not be used.
  HANDLE const ended = CreateEventW(nullptr, TRUE, TRUE, nullptr);
  auto* const session = +[]() -> DWORD { return 5; };
  const ReplacedExport query(
      "WTSQueryUserToken", +[](ULONG session, HANDLE* token) -> BOOL {
        *token = reinterpret_cast<HANDLE>(0x7701ULL);
        return session == 5;
      });
  REPLACE(CloseHandle, [](auto original, HANDLE handle) {
    return NoteIfOurs("close", handle) ? TRUE : original(handle);
  });
  const auto fail = [=](const auto&... given) -> BOOL {
    std::get<sizeof...(given) - 1>(std::tie(given...))->hProcess = ended;
    return FALSE;
  };
  REPLACE(CreateProcessAsUserW, [=](auto, auto token, auto... given) {
    return !NoteIfOurs("start", token) || fail(given...);
  });
  // Makes OpenWindowStationW fail, so that RunAsUser cannot change WinSta0's DACL.
  REPLACE(OpenWindowStationW, [](auto...) { return nullptr; });
  REPLACE(CreateProcessW, [=](auto, auto... given) {
    CHECK(ShownCall("", given...) == "(0, given, 0, 0, 0, 0, 0, 0, size 104 on 0, given)");
    CHECK(std::get<1>(std::tuple(given...)) == std::wstring(L"\"program\" "));
    calls += "caller";
    return fail(given...);
  });
  // In the last row, no "close2" follows "start2", because RunAsUser keeps its duplicate open.
  using Path = std::tuple<DWORD, DWORD, bool, bool, const wchar_t*, std::string>;
  for (const auto& [minor, ownSession, hasSession, duplicates, desktop, expected] :
       {Path{1, 5, true, true, nullptr, "close1start2close2"},
        Path{1, 3, true, false, nullptr, "start1close1"},
        Path{1, 5, false, true, L"kelvo other", "caller"},
        Path{0, 3, true, true, L"kelvo other", "caller"}, Path{0, 0, true, true, nullptr, "caller"},
        Path{0, 0, true, true, L"kelvo other", "start2"}}) {
    const DesktopScope scope(nullptr, desktop);
    const ReplacedExport console("WTSGetActiveConsoleSessionId", hasSession ? session : nullptr);
    const auto windows = PretendWindows(2, 5, minor);
    REPLACE(ProcessIdToSessionId, [=](auto, auto, DWORD* id) {
      *id = ownSession;
      return TRUE;
    });
    REPLACE(DuplicateTokenEx, [=](auto, auto, auto, auto, auto, auto, HANDLE* token) {
      *token = reinterpret_cast<HANDLE>(0x7702ULL);
      return duplicates;
    });
    HANDLE untouched = &calls;
    calls.clear();
    CHECK_FALSE(LaunchInUserSession(L"program", nullptr, true, &untouched));
    CHECK_BOTH(untouched == &calls, calls == expected);
  }
}
