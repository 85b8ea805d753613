#include "status/driver_package_status.h"

#include <array>
#include <cwchar>
#include <string>
#include <string_view>

#include "lib/platform/owned.h"
#include "lib/string/compare_no_case.h"

namespace kelvo {

namespace {

DWORD ReadFileBytes(const wchar_t* path, std::string& bytes) {
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const OwnedFile file(CreateFileW(path, GENERIC_READ, kShare, nullptr, OPEN_EXISTING, 0, nullptr));
  LARGE_INTEGER size{};
  if (!file || GetFileSizeEx(file.get(), &size) == FALSE) {
    return GetLastError();
  }
  if (size.HighPart != 0) {
    return ERROR_FILE_TOO_LARGE;
  }
  bytes.resize(size.LowPart);
  DWORD read = 0;
  if (ReadFile(file.get(), bytes.data(), size.LowPart, &read, nullptr) == FALSE) {
    return GetLastError();
  }
  bytes.resize(read);
  return ERROR_SUCCESS;
}

WString InfFolder() {
  std::array<wchar_t, MAX_PATH> windows{};
  GetSystemWindowsDirectoryW(windows.data(), MAX_PATH);
  return WString(windows.data()) + L"\\INF\\";
}

// The name of the published file with these bytes, empty for none. `error` is that of the search or
// of the last file that could not be read.
WString FindPublishedCopy(const std::string& wanted, DWORD& error) {
  const WString folder = InfFolder();
  WIN32_FIND_DATAW entry{};
  const OwnedFileSearch search(FindFirstFileW((folder + L"oem*.inf").c_str(), &entry));
  bool isMore = static_cast<bool>(search);
  std::string bytes;
  for (; isMore; isMore = FindNextFileW(search.get(), &entry) != FALSE) {
    if (!IsPublishedName(entry.cFileName)) {
      continue;
    }
    if (const DWORD failed = ReadFileBytes((folder + entry.cFileName).c_str(), bytes)) {
      error = failed;
    } else if (bytes == wanted) {
      error = ERROR_SUCCESS;
      return entry.cFileName;
    }
  }
  if (const DWORD ended = GetLastError();
      ended != ERROR_FILE_NOT_FOUND && ended != ERROR_NO_MORE_FILES) {
    error = ended;
  }
  return {};
}

}  // namespace

DriverPackageFacts QueryDriverPackage(const wchar_t* infPath) {
  DriverPackageFacts facts;
  std::string bytes;
  facts.error = ReadFileBytes(infPath, bytes);
  if (facts.error == ERROR_SUCCESS) {
    facts.publishedName = FindPublishedCopy(bytes, facts.error);
  }
  if (!facts.publishedName.empty()) {
    // From the given file: Windows may write a compiled form of an INF beside its published copy.
    facts.version = ReadInfVersion(infPath);
  }
  return facts;
}

bool IsPublishedName(std::wstring_view name) {
  constexpr std::size_t kPrefixLength = 3;  // "oem"
  const std::size_t end = name.find_first_not_of(L"0123456789", kPrefixLength);
  return name.length() > kPrefixLength && end != kPrefixLength && end != std::wstring_view::npos &&
         CompareNoCase(WString(name.substr(0, kPrefixLength)).c_str(), L"oem") == 0 &&
         CompareNoCase(WString(name.substr(end)).c_str(), L".inf") == 0;
}

Item DescribeDriverPackage(const WString& infPath, const DriverPackageFacts& facts) {
  constexpr const char* kKind = "driver_package";
  if (facts.error != ERROR_SUCCESS) {
    return UnknownItem(kKind, infPath, facts.error);
  }
  if (facts.publishedName.empty()) {
    return {kKind, State::kAbsent, infPath, {}};
  }
  Item item{kKind,
            State::kPresent,
            infPath,
            {TextDetail("published_name", L"published as", facts.publishedName),
             TextDetail("provider", L"provider", facts.version.provider),
             TextDetail("driver_version", L"version", facts.version.driverVersion)}};
  if (facts.version.error != ERROR_SUCCESS) {
    item.details.push_back(TextDetail("version_error", L"not all of it could be read:",
                                      DescribeError(facts.version.error)));
  }
  return item;
}

}  // namespace kelvo
