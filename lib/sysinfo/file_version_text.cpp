#include "lib/sysinfo/file_version_text.h"

#include <windows.h>

#include <cwchar>
#include <span>
#include <string_view>
#include <vector>

#include "lib/string/format_text.h"
#include "lib/sysinfo/internal/version_value.h"

namespace kelvo {

namespace {

// Returns the file's version resource as GetFileVersionInfoW stores it, or an empty vector when the
// resource cannot be read.
std::vector<BYTE> ReadVersionResource(const wchar_t* path) {
  DWORD ignored = 0;
  std::vector<BYTE> resource(GetFileVersionInfoSizeW(path, &ignored));
  if (!resource.empty() &&
      GetFileVersionInfoW(path, 0, static_cast<DWORD>(resource.size()), resource.data()) == FALSE) {
    resource.clear();
  }
  return resource;
}

// Returns the path under which VerQueryValueW finds the string "FileVersion" of the first
// translation. Returns an empty string when the resource has no translation.
WString FileVersionPath(std::span<const BYTE> resource) {
  const std::span<const BYTE> value =
      internal::FindVersionValue(resource, L"\\VarFileInfo\\Translation", sizeof(BYTE));
  if (value.size() < 4) {
    return {};
  }
  // A translation consists of a language and a code page. Each has two bytes, the low byte first.
  return FormatText(L"\\StringFileInfo\\%02x%02x%02x%02x\\FileVersion", value[1], value[0],
                    value[3], value[2]);
}

}  // namespace

WString GetFileVersionText(const wchar_t* path) {
  const std::vector<BYTE> resource = ReadVersionResource(path);
  if (resource.empty()) {
    return {};
  }
  const WString textPath = FileVersionPath(resource);
  if (textPath.empty()) {
    return {};
  }
  const std::span<const BYTE> value =
      internal::FindVersionValue(resource, textPath.c_str(), sizeof(wchar_t));
  const auto* const text = reinterpret_cast<const wchar_t*>(value.data());
  return WString(std::wstring_view(text, wcsnlen(text, value.size() / sizeof(wchar_t))));
}

}  // namespace kelvo
