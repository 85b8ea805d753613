#include "lib/process/run_as_user.h"

#include "lib/platform/owned.h"
#include "lib/process/interactive_desktop.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

namespace {

std::string calls;
// Notes the first letters of each call's name, and lets it through.
#define KELVO_NOTE(function, letters)                                     \
  KELVO_REPLACE_IMPORT(function, [&](auto original, auto... parameters) { \
    calls += letters;                                                     \
    return original(parameters...);                                       \
  })

}  // namespace

TEST_CASE("a command line runs on the interactive desktop from everywhere") {
  const test::ScratchFolder folder;
  const auto file = folder.Path() / "names";
  const struct {
    const wchar_t* station;
    const wchar_t* desktop;
    std::string opens;
    std::string restores;
    std::string closes;
  } places[] = {
      {nullptr, nullptr, "", "", ""},
      {nullptr, L"kelvo desktop", "", "station desktop ", "close close "},
      {L"kelvo process test", L"Default", "station ", "station desktop ", "close close "}};
  for (int round = 0; round < 12; ++round) {
    const auto& place = places[round / 4];
    const bool wait = round % 2 == 1;
    const bool wantsProcess = round % 4 >= 2;
    CAPTURE(round);
    const test::DesktopScope scope(place.station, place.desktop);
    const std::wstring before = test::CurrentDesktop();
    std::wstring command =
        L"\"" + test::ProgramPath(L"report_desktop.exe") + L"\" \"" + file.wstring() + L"\"";
    OwnedKernelObject process;
    calls.clear();
    {
      const auto create = KELVO_NOTE(CreateProcessAsUserW, "create ");
      const auto free = KELVO_NOTE(HeapFree, "free ");
      const auto station = KELVO_NOTE(SetProcessWindowStation, "station ");
      const auto desktop = KELVO_NOTE(SetThreadDesktop, "desktop ");
      const auto waiting = KELVO_NOTE(WaitForSingleObject, "wait ");
      const auto closeDesktop = KELVO_NOTE(CloseDesktop, "close ");
      const auto closeStation = KELVO_NOTE(CloseWindowStation, "close ");
      REQUIRE(RunAsUser(command.data(), wait, wantsProcess ? process.Receive() : nullptr) == TRUE);
    }
    CHECK(calls ==
          place.opens + "create free " + place.restores + (wait ? "wait " : "") + place.closes);
    CHECK(test::CurrentDesktop() == before);
    DWORD exitCode = wantsProcess ? STILL_ACTIVE : 7;
    while (GetExitCodeProcess(process.get(), &exitCode) && exitCode == STILL_ACTIVE && !wait) {
      Sleep(10);
    }
    CHECK(exitCode == 7);
    for (int tries = 0; tries < 500 && test::ReadBytes(file).size() < 15; ++tries) {
      Sleep(10);
    }
    CHECK(test::ReadBytes(file) == "WinSta0\\Default");
    std::filesystem::remove(file);
  }
}

TEST_CASE("letter case matters where a process is started, not where one asks") {
  const struct {
    const wchar_t* station;
    const wchar_t* desktop;
    BOOL isInteractive;
    int moves;
  } cases[] = {{L"WinSta0", L"Default", TRUE, 0},
               {L"WINSTA0", L"DEFAULT", TRUE, 1},
               {L"winsta0", L"default", TRUE, 1},
               {L"W\u0130nSta0", L"Default", FALSE, 1},
               {L"WinSta0", L"Default2", FALSE, 0}};
  for (const auto& row : cases) {
    const wchar_t* name = row.station;
    const auto named = KELVO_REPLACE_IMPORT(
        GetUserObjectInformationW, [&](auto, HANDLE, int, void* text, DWORD, DWORD* needed) {
          lstrcpyW(static_cast<wchar_t*>(text), std::exchange(name, row.desktop));
          *needed = 520;
          return TRUE;
        });
    CHECK(IsOnInteractiveDesktop() == row.isInteractive);
    int moves = 0;
    const auto refusing = KELVO_REPLACE_IMPORT(OpenWindowStationW, [&](auto...) {
      ++moves;
      return HWINSTA{nullptr};
    });
    name = row.station;
    CHECK(RunAsUser(std::wstring(L"no such program").data(), FALSE, nullptr) == FALSE);
    CHECK(moves == row.moves);
  }
}

}  // namespace kelvo
