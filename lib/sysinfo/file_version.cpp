#include "lib/sysinfo/file_version.h"

#include <windows.h>

#include <compare>

#include "lib/string/wstring.h"
#include "lib/sysinfo/internal/fixed_file_version.h"
#include "lib/sysinfo/system_directories.h"

namespace kelvo {

int CompareFileVersion(const wchar_t* path, int major, int minor, int build, int revision) {
  internal::FixedFileVersion version = internal::ReadFixedFileVersion(path);
  if (!version.numbers) {
    return 2;
  }
  const auto order =
      *version.numbers <=> internal::FileVersionNumbers{major, minor, build, revision};
  if (order < 0) {
    return -1;
  }
  // As file_version.h says, the memory of the version resource is leaked when the result is 1 or 0.
  version.memory.release();
  return order > 0 ? 1 : 0;
}

int CompareFileVersionNumbers(const wchar_t* path, int major, int minor, int build, int revision) {
  return CompareFileVersion(path, major, minor, build, revision);
}

bool GetFileVersionString(wchar_t* text, const wchar_t* path) {
  const internal::FixedFileVersion version = internal::ReadFixedFileVersion(path);
  if (!version.numbers) {
    lstrcpyW(text, L"not available");
    return false;
  }
  const auto [major, minor, build, revision] = *version.numbers;
  wsprintfW(text, L"%u.%u.%u.%u", major, minor, build, revision);
  return true;
}

bool GetSystemFileVersionString(wchar_t* text, const wchar_t* fileName) {
  const WString path = WString(GetSystemDirectoryPath()) + fileName;
  GetFileVersionString(text, path.c_str());
  return true;
}

}  // namespace kelvo
