#include "lib/paths/file_replacement.h"

#include <windows.h>

#include <array>

#include "lib/paths/internal/trailing_backslash.h"
#include "lib/string/wstring.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

// The path of a copy in the temporary folder, empty when none could be made.
WString CopyToTemporaryFile(const wchar_t* source) {
  std::array<wchar_t, MAX_PATH> folder{};
  std::array<wchar_t, MAX_PATH> copy{};
  if (GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) == 0 ||
      GetTempFileNameW(folder.data(), L"wqr", 0, copy.data()) == 0) {
    return {};
  }
  if (CopyFileW(source, copy.data(), FALSE) == FALSE) {
    // The name is taken by an empty file, which must not replace anything.
    DeleteFileW(copy.data());
    return {};
  }
  return {copy.data()};
}

WString ShortName(const wchar_t* path) {
  std::array<wchar_t, 255> name{};
  const DWORD length = GetShortPathNameW(path, name.data(), static_cast<DWORD>(name.size()));
  return {length > 0 && length < name.size() ? name.data() : path};
}

void AddToWininit(const wchar_t* source, const wchar_t* target) {
  std::array<wchar_t, 256> directory{};
  GetWindowsDirectoryW(directory.data(), static_cast<UINT>(directory.size()));
  if (!internal::EnsureTrailingBackslash(directory)) {
    return;
  }
  const WString file = WString(directory.data()) + L"WININIT.INI";
  WritePrivateProfileStringW(L"Rename", ShortName(target).c_str(), ShortName(source).c_str(),
                             file.c_str());
}

}  // namespace

bool ScheduleFileReplace(const void* /*unused*/, const wchar_t* source, const wchar_t* target,
                         bool copyFirst) {
  // Windows takes a missing target as an order to delete the source.
  if (source == nullptr || target == nullptr) {
    return true;
  }
  const WString from = copyFirst ? CopyToTemporaryFile(source) : WString(source);
  if (from.empty()) {
    return true;
  }
  if (IsWinNT()) {
    MoveFileExW(from.c_str(), target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_DELAY_UNTIL_REBOOT);
  } else {
    AddToWininit(from.c_str(), target);
  }
  return true;
}

}  // namespace kelvo
