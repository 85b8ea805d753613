#include "lib/sysinfo/file_version_text.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <string_view>
#include <vector>

#include "lib/string/format_text.h"

namespace kelvo {

namespace {

// The resource as Windows lays it out; empty when it cannot be read.
std::vector<BYTE> ReadVersionResource(const wchar_t* path) {
  DWORD ignored = 0;
  std::vector<BYTE> resource(GetFileVersionInfoSizeW(path, &ignored));
  if (!resource.empty() &&
      GetFileVersionInfoW(path, 0, static_cast<DWORD>(resource.size()), resource.data()) == FALSE) {
    resource.clear();
  }
  return resource;
}

// The path below which the texts of the first translation stand; empty when there is none.
WString FileVersionPath(const std::vector<BYTE>& resource) {
  void* translation = nullptr;
  UINT size = 0;
  if (VerQueryValueW(resource.data(), L"\\VarFileInfo\\Translation", &translation, &size) ==
          FALSE ||
      size < 4) {
    return {};
  }
  // Language, then code page.
  const auto* const bytes = static_cast<const BYTE*>(translation);
  return FormatText(L"\\StringFileInfo\\%02x%02x%02x%02x\\FileVersion", bytes[1], bytes[0],
                    bytes[3], bytes[2]);
}

}  // namespace

WString GetFileVersionText(const wchar_t* path) {
  const std::vector<BYTE> resource = ReadVersionResource(path);
  if (resource.empty()) {
    return {};
  }
  const WString textPath = FileVersionPath(resource);
  void* found = nullptr;
  UINT length = 0;
  if (textPath.empty() ||
      VerQueryValueW(resource.data(), textPath.c_str(), &found, &length) == FALSE) {
    return {};
  }
  // The length is what the file claims: the text ends with the resource at the latest.
  const auto* const text = static_cast<const wchar_t*>(found);
  const auto left =
      static_cast<std::size_t>(resource.data() + resource.size() - static_cast<const BYTE*>(found));
  const std::size_t longest = std::min<std::size_t>(length, left / sizeof(wchar_t));
  return WString(std::wstring_view(text, wcsnlen(text, longest)));
}

}  // namespace kelvo
