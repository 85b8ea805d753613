#include "lib/paths/file_replacement.h"

#include <algorithm>

#include "lib/paths/file_exists.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

TEST_CASE("a replacement waits in the system's list, or on Windows 9x in WININIT.INI") {
  const test::ScratchFolder folder;
  const std::wstring source = folder.Write("new long file.txt", "new").wstring();
  const std::wstring target = folder.Path().wstring() + L"\\" + std::wstring(150, L't');
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
  const std::wstring before = pending();
  const std::wstring ordered = before + L"\\??\\" + source + L"|!\\??\\" + target + L"|";
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), nullptr, false));
  CHECK(ScheduleFileReplace(nullptr, L"C:\\not\\there", target.c_str(), true));
  CHECK(pending() == ordered);
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), true));
  const std::wstring added = pending().substr(ordered.length() + 4);
  const std::wstring copy = added.substr(0, added.find(L'|'));
  CHECK(added == copy + L"|!\\??\\" + target + L"|");
  CHECK(copy.find(L"\\wqr") != std::wstring::npos);
  CHECK(test::ReadBytes(copy) == "new");
  DeleteFileW(copy.c_str());
  if (before.empty()) {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, manager, value);
  }

  const auto windows9x = KELVO_REPLACE_IMPORT(GetVersionExW, [](auto...) { return FALSE; });
  const auto windows = KELVO_REPLACE_IMPORT(GetWindowsDirectoryW, [&](auto, auto buffer, UINT) {
    return static_cast<UINT>(lstrlenW(lstrcpyW(buffer, folder.Path().c_str())));
  });
  wchar_t shortName[MAX_PATH];
  wchar_t found[MAX_PATH] = L"";
  GetShortPathNameW(source.c_str(), shortName, MAX_PATH);
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), source.c_str(), false));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  for (const wchar_t* const name : {static_cast<const wchar_t*>(shortName), target.c_str()}) {
    GetPrivateProfileStringW(L"Rename", name, L"", found, MAX_PATH,
                             (folder.Path() / "WININIT.INI").c_str());
    CHECK(std::wstring(found) == shortName);
  }
  CHECK(FileExists((folder.Path() / "W*.IN?").c_str()));
  CHECK_FALSE(FileExists((folder.Path() / "*.no").c_str()));
}

}  // namespace kelvo
