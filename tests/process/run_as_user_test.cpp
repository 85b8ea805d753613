#include "lib/process/run_as_user.h"

#include "lib/platform/owned.h"
#include "lib/process/interactive_desktop.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/dacl_text.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

namespace {

// Notes the name of each call, and lets it through.
#define KELVO_NOTE_CALL(function)                                         \
  KELVO_REPLACE_IMPORT(function, [&](auto original, auto... parameters) { \
    calls += std::string(" ") + #function;                                \
    return original(parameters...);                                       \
  })

struct Place {
  const wchar_t* station;
  const wchar_t* desktop;
  const char* restores;
  const char* closes;
};

constexpr Place kPlaces[] = {
    {nullptr, nullptr, "", ""},
    {nullptr, L"kelvo desktop", " SetProcessWindowStation SetThreadDesktop",
     " CloseDesktop CloseWindowStation"},
    {L"kelvo process test", L"Default", " SetProcessWindowStation SetThreadDesktop",
     " CloseDesktop CloseWindowStation"}};

}  // namespace

TEST_CASE("a command line runs on the interactive desktop from everywhere") {
  const test::ScratchFolder folder;
  const auto file = folder.Path() / "names";
  for (const Place& place : kPlaces) {
    for (const bool wait : {true, false}) {
      for (const bool wantsProcess : {true, false}) {
        const test::DesktopScope scope(place.station, place.desktop);
        const std::wstring before = test::CurrentDesktop();
        CAPTURE(before, wait, wantsProcess);
        std::filesystem::remove(file);
        std::wstring command =
            L"\"" + test::ProgramPath(L"report_desktop.exe") + L"\" \"" + file.wstring() + L"\"";
        OwnedKernelObject process;
        std::string calls;
        {
          const auto created =
              KELVO_REPLACE_IMPORT(CreateProcessAsUserW, [&](auto original, auto... parameters) {
                const BOOL result = original(parameters...);
                calls.clear();
                return result;
              });
          const auto n1 = KELVO_NOTE_CALL(HeapFree);
          const auto n2 = KELVO_NOTE_CALL(SetProcessWindowStation);
          const auto n3 = KELVO_NOTE_CALL(SetThreadDesktop);
          const auto n4 = KELVO_NOTE_CALL(WaitForSingleObject);
          const auto n5 = KELVO_NOTE_CALL(CloseHandle);
          const auto n6 = KELVO_NOTE_CALL(CloseDesktop);
          const auto n7 = KELVO_NOTE_CALL(CloseWindowStation);
          REQUIRE(RunAsUser(command.data(), wait, wantsProcess ? process.Receive() : nullptr) ==
                  TRUE);
        }
        CHECK(calls == std::string(" HeapFree") + place.restores +
                           (wait ? " WaitForSingleObject" : "") +
                           (wantsProcess ? "" : " CloseHandle") + " CloseHandle" + place.closes);
        CHECK(test::CurrentDesktop() == before);
        if (wantsProcess) {
          DWORD exitCode = 0;
          CHECK(WaitForSingleObject(process.get(), wait ? 0 : INFINITE) == WAIT_OBJECT_0);
          CHECK(GetExitCodeProcess(process.get(), &exitCode) == TRUE);
          CHECK(exitCode == 7);
        }
        for (int tries = 0; tries < 100 && test::ReadBytes(file).size() < 15; ++tries) {
          Sleep(100);
        }
        CHECK(test::ReadBytes(file) == "WinSta0\\Default");
      }
    }
  }
}

TEST_CASE("only a process from another station has the interactive one opened to its user") {
  const HWINSTA station = OpenWindowStationW(L"WinSta0", FALSE, READ_CONTROL | WRITE_DAC);
  const HDESK desktop = OpenDesktopW(L"Default", 0, FALSE, READ_CONTROL | WRITE_DAC);
  const struct {
    HANDLE object;
    std::wstring before;
    const wchar_t* mask;
  } objects[] = {{station, test::ReadDacl(station), L"0xf037f"},
                 {desktop, test::ReadDacl(desktop), L"0xf01ff"}};
  const std::wstring everyone = test::NormalDacl(L"D:(A;;0xf03ff;;;WD)");
  for (const Place& place : kPlaces) {
    for (const auto& object : objects) {
      test::WriteDacl(object.object, everyone);
    }
    {
      const test::DesktopScope scope(place.station, place.desktop);
      std::wstring command = test::ProgramPath(L"report_desktop.exe") + L" NUL";
      CHECK(RunAsUser(command.data(), TRUE, nullptr) == TRUE);
    }
    for (const auto& object : objects) {
      std::wstring dacl = test::ReadDacl(object.object);
      if (place.station != nullptr) {
        const std::wstring user = test::NormalDacl(std::wstring(L"D:(A;;") + object.mask + L";;;" +
                                                   test::CurrentUserSid() + L")")
                                      .substr(2);
        const std::size_t at = dacl.find(user);
        REQUIRE(at != std::wstring::npos);
        dacl.erase(at, user.size());
      }
      CHECK(dacl == everyone);
    }
  }
  for (const auto& object : objects) {
    test::WriteDacl(object.object, object.before);
  }
}

TEST_CASE("the interactive desktop is known by its names, in whatever letter case") {
  const struct {
    const wchar_t* station;
    const wchar_t* desktop;
    BOOL answer;
  } cases[] = {{L"WinSta0", L"Default", TRUE},   {L"WINSTA0", L"DEFAULT", TRUE},
               {L"winsta0", L"default", TRUE},   {L"WinSta", L"Default", FALSE},
               {L"WinSta0", L"Default2", FALSE}, {L"W\u0130nSta0", L"Default", FALSE},
               {L"WinSta0", L"Winlogon", FALSE}, {L"", L"", FALSE}};
  for (const auto& row : cases) {
    const wchar_t* next = row.station;
    std::string calls;
    const auto named = KELVO_REPLACE_IMPORT(
        GetUserObjectInformationW,
        [&](auto, HANDLE, int, void* buffer, DWORD size, DWORD* needed) -> BOOL {
          lstrcpynW(static_cast<wchar_t*>(buffer), std::exchange(next, row.desktop),
                    static_cast<int>(size / sizeof(wchar_t)));
          *needed = 2;
          return TRUE;
        });
    const auto n1 = KELVO_NOTE_CALL(CloseWindowStation);
    const auto n2 = KELVO_NOTE_CALL(CloseDesktop);
    CHECK(IsOnInteractiveDesktop() == row.answer);
    CHECK(calls == " CloseWindowStation CloseDesktop");
  }
  const test::DesktopScope scope(nullptr, L"kelvo desktop");
  CHECK(IsOnInteractiveDesktop() == FALSE);
}

}  // namespace kelvo
