#include "lib/paths/file_replacement.h"

#include "lib/paths/file_exists.h"
#include "tests/support/testing.h"
#include "tests/support/throw_away_prefix.h"

TEST_CASE("ScheduleFileReplace: calls MoveFileExW, or on Windows 9x writes WININIT.INI") {
  RequireThrowAwayPrefix();
  const ScratchFolder folder;
  const std::wstring source = folder.Write("new long file.txt", "new");
  const std::wstring target = folder / std::wstring(150, L't');
  const auto give = [&](wchar_t* buffer) {
    return static_cast<UINT>(lstrlenW(lstrcpyW(buffer, folder.path.c_str())));
  };
  REPLACE(GetTempPathW, [&](auto, auto, auto buffer) -> DWORD { return give(buffer); });
  std::vector<std::wstring> moved;
  BOOL isMoved = FALSE;
  REPLACE(MoveFileExW, [&](auto, LPCWSTR from, LPCWSTR to, DWORD flags) {
    CHECK_BOTH(to == target, flags == 5);
    moved.emplace_back(from);
    return isMoved;
  });
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), nullptr, false));
  CHECK(ScheduleFileReplace(nullptr, L"C:\\not\\there", target.c_str(), true));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), true));
  CHECK_FALSE(FileExists((folder / "wqr*").c_str()));
  isMoved = TRUE;
  for (const bool copyFirst : {false, true}) {
    moved.clear();
    CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), copyFirst));
    REQUIRE(moved.size() == 1);
    const bool isCopy = moved[0].find(L"\\wqr") != std::wstring::npos;
    CHECK_BOTH(isCopy == copyFirst, ReadBytes(moved[0]) == "new");
  }

  REPLACE(GetVersionExW, [](auto...) { return FALSE; });
  REPLACE(GetWindowsDirectoryW, [&](auto, auto buffer, auto) { return give(buffer); });
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), source.c_str(), false));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  wchar_t shortName[MAX_PATH];
  GetShortPathNameW(source.c_str(), shortName, MAX_PATH);
  for (const std::wstring& name : {std::wstring(shortName), target}) {
    wchar_t found[MAX_PATH];
    GetPrivateProfileStringW(L"Rename", name.c_str(), L"", found, MAX_PATH,
                             (folder / "WININIT.INI").c_str());
    CHECK(found == std::wstring(shortName));
  }
  CHECK_BOTH(FileExists((folder / "W*.IN?").c_str()), !FileExists((folder / "*.no").c_str()));
}
