#include "lib/paths/file_replacement.h"

#include <windows.h>

#include <array>
#include <cwchar>

#include "lib/paths/internal/trailing_backslash.h"
#include "lib/string/wstring.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

// Copies a file to the temporary folder and returns the copy's path, or an empty string on failure.
WString CopyToTemporaryFile(const wchar_t* source) {
  std::array<wchar_t, MAX_PATH> folder{};
  // Allocates the string before GetTempFileNameW creates the file, so that a failed allocation
  // leaves no file behind.
  WString copy(MAX_PATH, L'\0');
  if (GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) == 0 ||
      GetTempFileNameW(folder.data(), L"wqr", 0, copy.data()) == 0) {
    return {};
  }
  if (CopyFileW(source, copy.data(), FALSE) == FALSE) {
    // GetTempFileNameW has already created an empty file with this name.
    DeleteFileW(copy.data());
    return {};
  }
  copy.resize(std::wcslen(copy.c_str()));
  return copy;
}

WString ShortName(const wchar_t* path) {
  std::array<wchar_t, 255> name{};
  const DWORD length = GetShortPathNameW(path, name.data(), static_cast<DWORD>(name.size()));
  return {length > 0 && length < name.size() ? name.data() : path};
}

bool AddToWininit(const wchar_t* source, const wchar_t* target) {
  std::array<wchar_t, 256> directory{};
  GetWindowsDirectoryW(directory.data(), static_cast<UINT>(directory.size()));
  if (!internal::EnsureTrailingBackslash(directory)) {
    return false;
  }
  const WString file = WString(directory.data()) + L"WININIT.INI";
  return WritePrivateProfileStringW(L"Rename", ShortName(target).c_str(), ShortName(source).c_str(),
                                    file.c_str()) != FALSE;
}

bool Schedule(const wchar_t* source, const wchar_t* target) {
  constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_DELAY_UNTIL_REBOOT;
  return IsWinNT() ? MoveFileExW(source, target, kFlags) != FALSE : AddToWininit(source, target);
}

}  // namespace

bool ScheduleFileReplace(const void* /*unused*/, const wchar_t* source, const wchar_t* target,
                         bool copyFirst) {
  // If the target were null, MoveFileExW would schedule the deletion of the source.
  if (source == nullptr || target == nullptr) {
    return true;
  }
  const WString from = copyFirst ? CopyToTemporaryFile(source) : WString(source);
  if (from.empty()) {
    return true;
  }
  if (!Schedule(from.c_str(), target) && copyFirst) {
    // The caller cannot delete the copy, because only this function knows the copy's name.
    DeleteFileW(from.c_str());
  }
  return true;
}

}  // namespace kelvo
