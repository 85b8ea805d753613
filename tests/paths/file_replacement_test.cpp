#include "lib/paths/file_replacement.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kSessionManager = L"SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const wchar_t* kPending = L"PendingFileRenameOperations";

// What the system is to rename at its next start.
std::wstring PendingRenames() {
  std::wstring list(0x8000, L'\0');
  auto size = static_cast<DWORD>(list.size() * sizeof(wchar_t));
  const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, kSessionManager, kPending,
                                      RRF_RT_REG_MULTI_SZ, nullptr, list.data(), &size);
  return status == ERROR_SUCCESS ? list.substr(0, size / sizeof(wchar_t) - 1) : std::wstring();
}

}  // namespace

TEST_CASE("on NT the replacement waits in the system's list") {
  const test::ScratchFolder folder;
  const std::wstring source = folder.Write("new file.txt", "new").wstring();
  const std::wstring target = folder.Path().wstring() + L"\\old.txt";
  const std::wstring before = PendingRenames();
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  // None of these may leave an order.
  CHECK(ScheduleFileReplace(nullptr, nullptr, target.c_str(), true));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), nullptr, false));
  CHECK(ScheduleFileReplace(nullptr, L"C:\\not\\there", target.c_str(), true));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), true));
  std::wstring added = PendingRenames().substr(before.length());
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, kSessionManager, kPending, REG_MULTI_SZ, before.c_str(),
                  static_cast<DWORD>((before.length() + 1) * sizeof(wchar_t)));

  std::replace(added.begin(), added.end(), L'\0', L'|');
  const std::wstring first = L"\\??\\" + source + L"|!\\??\\" + target + L"|";
  REQUIRE(added.starts_with(first));
  const std::size_t end = added.find(L'|', first.length());
  const std::filesystem::path copy = added.substr(first.length() + 4, end - first.length() - 4);
  CHECK(added.substr(end) == L"|!\\??\\" + target + L"|");
  CHECK(copy.filename().wstring().starts_with(L"wqr"));
  CHECK(test::ReadBytes(copy) == "new");
  CHECK(std::filesystem::remove(copy));
}

TEST_CASE("on Windows 9x the replacement stands in WININIT.INI under short names") {
  const test::ScratchFolder folder;
  const auto version =
      KELVO_REPLACE_IMPORT(GetVersionExW, [](auto /*original*/, OSVERSIONINFOW* record) {
        record->dwPlatformId = VER_PLATFORM_WIN32_WINDOWS;
        return TRUE;
      });
  const auto windows = KELVO_REPLACE_IMPORT(
      GetWindowsDirectoryW, [&](auto /*original*/, wchar_t* buffer, UINT /*size*/) {
        return static_cast<UINT>(lstrlenW(lstrcpyW(buffer, folder.Path().c_str())));
      });
  const std::wstring source = folder.Write("a long source name", "").wstring();
  const std::wstring target = folder.Write("a long target name", "").wstring();
  wchar_t shortSource[MAX_PATH];
  wchar_t shortTarget[MAX_PATH];
  GetShortPathNameW(source.c_str(), shortSource, MAX_PATH);
  GetShortPathNameW(target.c_str(), shortTarget, MAX_PATH);
  const std::wstring missing = L"C:\\missing\\" + std::wstring(300, L'm');
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), target.c_str(), false));
  CHECK(ScheduleFileReplace(nullptr, source.c_str(), missing.c_str(), false));
  for (const wchar_t* const name : {static_cast<const wchar_t*>(shortTarget), missing.c_str()}) {
    wchar_t replaced[MAX_PATH] = L"";
    GetPrivateProfileStringW(L"Rename", name, L"", replaced, MAX_PATH,
                             (folder.Path() / "WININIT.INI").c_str());
    CHECK(std::wstring(replaced) == shortSource);
  }
}

}  // namespace kelvo
