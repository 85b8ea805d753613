#include "lib/paths/file_replacement.h"

#include "lib/paths/file_exists.h"
#include "tests/support/testing.h"

TEST_CASE("a replacement waits in the system's list, or on Windows 9x in WININIT.INI") {
  const ScratchFolder folder;
  const std::wstring source = folder.Write("new long file.txt", "new");
  const std::wstring target = folder / std::wstring(150, L't');
  const wchar_t* const manager = L"SYSTEM\\CurrentControlSet\\Control\\Session Manager";
  const wchar_t* const value = L"PendingFileRenameOperations";
  const auto pending = [&] {
    std::wstring list(0x8000, L'\0');
    DWORD size = 0x10000;
    const bool found = RegGetValueW(HKEY_LOCAL_MACHINE, manager, value, RRF_RT_REG_MULTI_SZ,
                                    nullptr, list.data(), &size) == ERROR_SUCCESS;
    std::replace(list.begin(), list.end(), L'\0', L'|');
    return list.substr(0, found ? (size / sizeof(wchar_t)) - 1 : 0);
  };
  const auto tell = [&](wchar_t* buffer) {
    return static_cast<UINT>(lstrlenW(lstrcpyW(buffer, (folder / "").c_str())));
  };
  REPLACE(GetTempPathW, [&](auto, auto, auto buffer) -> DWORD { return tell(buffer); });
  const std::wstring before = pending();
  const std::wstring ordered = before + L"\\??\\" + source + L"|!\\??\\" + target + L"|";
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), nullptr, false));
  CHECK(ScheduleFileReplace(nullptr, L"C:\\not\\there", target.c_str(), true));
  CHECK_BOTH(pending() == ordered, !FileExists((folder / "wqr*").c_str()));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), true));
  const std::wstring added = pending().substr(ordered.length() + 4);
  const std::wstring copy = added.substr(0, added.find(L'|'));
  CHECK(added == copy + L"|!\\??\\" + target + L"|");
  CHECK_BOTH(copy.find(L"\\wqr") != std::wstring::npos, ReadBytes(copy) == "new");
  if (before.empty()) {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, manager, value);
  }

  REPLACE(GetVersionExW, [](auto...) { return FALSE; });
  REPLACE(GetWindowsDirectoryW, [&](auto, auto buffer, auto) { return tell(buffer); });
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
