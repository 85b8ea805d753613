#include "lib/paths/long_path_prefix.h"

#include <windows.h>

#include <cwchar>
#include <string_view>

namespace kelvo {

namespace {

constexpr std::wstring_view kPrefix = L"\\\\?\\";
constexpr std::wstring_view kUncPrefix = L"\\\\?\\UNC\\";

// The length of the longest path that Windows accepts, without the NUL.
constexpr std::size_t kMaxPrefixedLength = 32'767;

std::wstring_view ViewOf(const wchar_t* path) { return path != nullptr ? path : L""; }

bool IsSeparator(wchar_t unit) { return unit == L'\\' || unit == L'/'; }

// Returns true when the path begins with a drive letter, a colon and a separator ("C:\" or "C:/").
bool BeginsWithDrive(std::wstring_view path) {
  const auto letter = path.empty() ? L'\0' : path[0] | 0x20;
  return path.length() >= 3 && letter >= L'a' && letter <= L'z' && path[1] == L':' &&
         IsSeparator(path[2]);
}

// Returns true when `path` begins with a server name. The callers have removed the leading "\\" or
// "\\?\UNC\". "." and "?" are not server names, because paths that begin with "\\.\" or "\\?\" are
// device paths.
bool BeginsWithName(std::wstring_view path) {
  const std::wstring_view name = path.substr(0, path.find_first_of(L"\\/"));
  return !name.empty() && name != L"." && name != L"?";
}

// Returns true when the path begins with two separators and a server name ("\\server").
bool BeginsWithServer(std::wstring_view path) {
  return path.length() >= 3 && IsSeparator(path[0]) && IsSeparator(path[1]) &&
         BeginsWithName(path.substr(2));
}

// Returns an empty string when the path cannot be resolved.
WString FullPath(const wchar_t* path) {
  const DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
  WString full(size, L'\0');
  const DWORD length = GetFullPathNameW(path, size, full.data(), nullptr);
  full.resize(length < size ? length : 0);
  return full;
}

}  // namespace

WString AddLongPathPrefix(const wchar_t* path) {
  const std::wstring_view given = ViewOf(path);
  if (BeginsWithDrive(given) || BeginsWithServer(given)) {
    const WString full = FullPath(path);
    WString prefixed;
    if (BeginsWithDrive(full)) {
      prefixed = WString(kPrefix) + full;
    } else if (BeginsWithServer(full)) {
      prefixed = WString(kUncPrefix) + full.substr(2);
    }
    if (!prefixed.empty() && prefixed.length() <= kMaxPrefixedLength) {
      return prefixed;
    }
  }
  return WString(given);
}

WString RemoveLongPathPrefix(const wchar_t* path) {
  const std::wstring_view given = ViewOf(path);
  if (!given.empty() && _wcsnicmp(path, kUncPrefix.data(), kUncPrefix.length()) == 0 &&
      BeginsWithName(given.substr(kUncPrefix.length()))) {
    return WString(L"\\\\").append(given.substr(kUncPrefix.length()));
  }
  // Requires "\" after the drive: in a path with the prefix, Windows does not treat "/" as a
  // separator.
  const bool hasDrive = HasLongPathPrefix(path) &&
                        BeginsWithDrive(given.substr(kPrefix.length())) &&
                        given[kPrefix.length() + 2] == L'\\';
  return WString(hasDrive ? given.substr(kPrefix.length()) : given);
}

bool HasLongPathPrefix(const wchar_t* path) { return ViewOf(path).starts_with(kPrefix); }

}  // namespace kelvo
