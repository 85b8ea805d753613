#include "lib/process/run_as_user.h"

#include "lib/process/interactive_desktop.h"
#include "lib/process/session_process.h"
#include "tests/security/recorded_failures.h"
#include "tests/support/shown_arguments.h"
#include "tests/support/throw_away_prefix.h"

static std::string calls;

// Notes each call and lets it through. The error that it leaves belongs to nobody.
#define NOTE(function, note)                           \
  REPLACE(function, [](auto original, auto... given) { \
    calls += note;                                     \
    const auto result = original(given...);            \
    SetLastError(kFailure);                            \
    return result;                                     \
  })

TEST_CASE("a program runs on the interactive desktop, is waited for and handed over as asked") {
  RequireThrowAwayPrefix();
  const ScratchFolder folder;
  const std::wstring program = folder / L"a child.exe";
  CopyFileW(ProgramPath(L"test_child.exe").c_str(), program.c_str(), TRUE);
  const std::wstring name = L"kelvo_test_" + std::to_wstring(GetCurrentProcessId());
  const OwnedKernelObject go(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
  const OwnedKernelObject done(CreateEventW(nullptr, FALSE, FALSE, (name + L"_done").c_str()));
  const std::wstring arguments = L"report " + name + L" \"two  words\" \\\"quoted\\\" \"\" x ";
  const std::wstring command = L"\"" + program + L"\" " + arguments;
  // Where a call is made from, and what RunAsUser does there, but for waiting; nothing where it is
  // LaunchInUserSession that is called. No child may inherit the handles that stay open.
  struct Place {
    const wchar_t *station, *desktop;
    std::string before, after;
  };
  const Place places[] = {
      {nullptr, nullptr, "", ""},
      {nullptr, nullptr, "create free ", ""},
      {nullptr, L"kelvo desktop", "create free station desktop ", "close close "},
      {L"kelvo process test", L"Default",
       "open('WinSta0', 0, 393216) station open('Default', 0, 0, 393216) create free station "
       "desktop ",
       "close close "}};
  const auto run = [&](const Place& place, bool waits, HANDLE* slot) {
    if (place.before.empty()) {
      return LaunchInUserSession(program.c_str(), arguments.c_str(), waits, slot);
    }
    NOTE(OpenWindowStationW, ShownCall("open", given...) + " ");
    NOTE(OpenDesktopW, GetLastError() == 0 ? ShownCall("open", given...) + " " : "late ");
    NOTE(CreateProcessAsUserW, GetLastError() == 0 ? "create " : "late ");
    NOTE(HeapFree, "free ");
    NOTE(SetProcessWindowStation, "station ");
    NOTE(SetThreadDesktop, "desktop ");
    NOTE(WaitForSingleObject, "wait ");
    NOTE(CloseDesktop, "close ");
    NOTE(CloseWindowStation, "close ");
    const BOOL isDone = RunAsUser(std::wstring(command).data(), waits, slot);
    CHECK(calls == place.before + (waits ? "wait " : "") + place.after);
    return isDone == TRUE;
  };
  for (const Place& place : places) {
    // Waiting comes last: a program that still ends would keep the folder from being removed.
    for (const bool waits : {false, true}) {
      for (const bool takesHandle : {true, false}) {
        CAPTURE(place.before);
        INFO("waits: ", waits, ", takes the handle: ", takesHandle);
        const DesktopScope scope(place.station, place.desktop);
        const std::wstring before = CurrentDesktop();
        waits ? SetEvent(go.get()) : ResetEvent(go.get());
        OwnedKernelObject process;
        calls.clear();
        REQUIRE(run(place, waits, takesHandle ? process.Receive() : nullptr));
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
}

TEST_CASE("each failing call of a start has its message") {
  RequireThrowAwayPrefix();
  const WindowObjects scope;
  wchar_t command[] = L"no such program";
  const std::wstring seen = RecordFailures(
      {SETS_LAST_ERROR(OpenProcessToken), SETS_LAST_ERROR(GetTokenInformation),
       SETS_LAST_ERROR(AdjustTokenPrivileges), SETS_LAST_ERROR(GetUserObjectInformationW),
       SETS_LAST_ERROR(HeapAlloc), SETS_LAST_ERROR(LocalAlloc), SETS_LAST_ERROR(CopySid),
       RETURNS_ERROR(GetSecurityInfo), SETS_LAST_ERROR(InitializeSecurityDescriptor),
       SETS_LAST_ERROR(SetSecurityDescriptorDacl), SETS_LAST_ERROR(OpenWindowStationW),
       SETS_LAST_ERROR(OpenDesktopW),
       // Last: when it fails to restore the station, that is lost.
       SETS_LAST_ERROR(SetProcessWindowStation)},
      {{L"RunAsUser", [] { return IsOnInteractiveDesktop() == TRUE; }},
       {L"RunAsUser", [&] { return RunAsUser(command, TRUE, nullptr) == TRUE; }}},
      [&] {
        // A restoring call may have been the one that failed.
        SetProcessWindowStation(scope.station);
        SetThreadDesktop(scope.desktop);
      });
  CheckAgainstFile(Ascii(seen), L"start_failures.txt");
}
