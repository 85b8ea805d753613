#include "status/driver_package_status.h"

#include <windows.h>

#include <setupapi.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "lib/platform/owned.h"
#include "lib/platform/system_library.h"
#include "lib/string/compare_no_case.h"

namespace kelvo {

namespace {

// Larger INF files are refused. Most INF files are far smaller.
constexpr LONGLONG kMostBytes = LONGLONG{4} * 1024 * 1024;

// Opens a file and gets its size. If `path` is the path of a named pipe, SECURITY_ANONYMOUS
// prevents the process that created the pipe from impersonating the caller.
DWORD OpenFile(const WString& path, DWORD access, OwnedFile& file, LARGE_INTEGER& size) {
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  file.reset(CreateFileW(path.c_str(), access, kShare, nullptr, OPEN_EXISTING,
                         SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS, nullptr));
  return file && GetFileSizeEx(file.get(), &size) != FALSE ? ERROR_SUCCESS : GetLastError();
}

DWORD ReadBytes(const WString& path, std::string& bytes) {
  OwnedFile file;
  LARGE_INTEGER size{};
  if (const DWORD error = OpenFile(path, GENERIC_READ, file, size)) {
    return error;
  }
  if (size.QuadPart > kMostBytes) {
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

bool HasVersionSection(std::string bytes) {
  // An INF file is ANSI or UTF-16. After the zero bytes are removed, a search for ASCII text works
  // in both encodings.
  std::erase(bytes, '\0');
  std::transform(bytes.begin(), bytes.end(), bytes.begin(), [](char byte) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
  });
  return bytes.find("[version]") != std::string::npos;
}

// Compares a file's content with `wanted`. A file whose size differs from that of `wanted` is
// not opened for reading, so it causes no error even if it cannot be read.
DWORD CompareFile(const WString& path, const std::string& wanted, bool& isSame) {
  OwnedFile file;
  LARGE_INTEGER size{};
  if (const DWORD error = OpenFile(path, FILE_READ_ATTRIBUTES, file, size)) {
    return error;
  }
  if (size.QuadPart != static_cast<LONGLONG>(wanted.size())) {
    return ERROR_SUCCESS;
  }
  std::string bytes;
  const DWORD error = ReadBytes(path, bytes);
  isSame = error == ERROR_SUCCESS && bytes == wanted;
  return error;
}

// Stores in `name` the name of a published INF file whose content is `wanted`. Leaves `name` empty
// when no published INF file has this content.
DWORD FindPublishedCopy(const std::string& wanted, WString& name) {
  std::array<wchar_t, MAX_PATH> windows{};
  if (GetSystemWindowsDirectoryW(windows.data(), MAX_PATH) == 0) {
    return GetLastError();
  }
  const WString folder = WString(windows.data()) + L"\\INF\\";
  WIN32_FIND_DATAW entry{};
  const OwnedFileSearch search(FindFirstFileW((folder + L"oem*.inf").c_str(), &entry));
  DWORD error = ERROR_SUCCESS;
  bool isMore = static_cast<bool>(search);
  for (; isMore; isMore = FindNextFileW(search.get(), &entry) != FALSE) {
    if (!IsPublishedName(entry.cFileName) ||
        (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      continue;
    }
    bool isSame = false;
    if (const DWORD failed = CompareFile(folder + entry.cFileName, wanted, isSame)) {
      error = failed;
    } else if (isSame) {
      name = entry.cFileName;
      return ERROR_SUCCESS;
    }
  }
  const DWORD ended = GetLastError();
  return ended == ERROR_FILE_NOT_FOUND || ended == ERROR_NO_MORE_FILES ? error : ended;
}

struct SetupFunctions {
  OwnedModule library = LoadSystemLibrary(L"setupapi.dll");
  decltype(&SetupOpenInfFileW) open = KELVO_FIND_FUNCTION(library.get(), SetupOpenInfFileW);
  decltype(&SetupCloseInfFile) close = KELVO_FIND_FUNCTION(library.get(), SetupCloseInfFile);
  decltype(&SetupGetLineTextW) getLineText = KELVO_FIND_FUNCTION(library.get(), SetupGetLineTextW);

  explicit operator bool() const {
    return open != nullptr && close != nullptr && getLineText != nullptr;
  }
};

WString FullPath(const WString& path) {
  const DWORD length = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  WString full(length, L'\0');
  GetFullPathNameW(path.c_str(), length, full.data(), nullptr);
  return full;
}

DWORD ReadEntry(const SetupFunctions& functions, HINF inf, const wchar_t* key, WString& text) {
  WString buffer(MAX_INF_STRING_LENGTH, L'\0');
  if (functions.getLineText(nullptr, inf, L"Version", key, buffer.data(), MAX_INF_STRING_LENGTH,
                            nullptr) == FALSE) {
    return GetLastError();
  }
  text = buffer.c_str();
  return ERROR_SUCCESS;
}

// Reads the entries Provider and DriverVer from the section [Version] of an INF file. If one entry
// cannot be read, still reads the other. Returns the first error code, or ERROR_SUCCESS.
DWORD ReadVersion(const WString& infPath, WString& provider, WString& driverVersion) {
  const SetupFunctions functions;
  if (!functions) {
    return GetLastError();
  }
  // Given a file name without a folder, SetupOpenInfFileW would search the INF folder of Windows.
  const WString path = FullPath(infPath);
  HINF const inf = functions.open(path.c_str(), nullptr, INF_STYLE_WIN4, nullptr);
  if (inf == INVALID_HANDLE_VALUE) {
    return GetLastError();
  }
  const DWORD providerError = ReadEntry(functions, inf, L"Provider", provider);
  const DWORD versionError = ReadEntry(functions, inf, L"DriverVer", driverVersion);
  functions.close(inf);
  return providerError != ERROR_SUCCESS ? providerError : versionError;
}

}  // namespace

Item QueryDriverPackage(const WString& infPath) {
  constexpr const char* kKind = "driver_package";
  std::string bytes;
  DWORD error = ReadBytes(infPath, bytes);
  if (error == ERROR_SUCCESS && !HasVersionSection(bytes)) {
    error = ERROR_SECTION_NOT_FOUND;
  }
  WString publishedName;
  if (error == ERROR_SUCCESS) {
    error = FindPublishedCopy(bytes, publishedName);
  }
  if (error != ERROR_SUCCESS) {
    return UnknownItem(kKind, infPath, error);
  }
  if (publishedName.empty()) {
    return {kKind, State::kAbsent, infPath, {}};
  }
  WString provider;
  WString driverVersion;
  // Reads the file `infPath` and not the published copy: if SetupOpenInfFileW opened the copy,
  // Windows could write a .pnf file next to the copy.
  error = ReadVersion(infPath, provider, driverVersion);
  Item item{kKind,
            State::kPresent,
            infPath,
            {TextDetail("published_name", L"published as", publishedName),
             TextDetail("provider", L"provider", provider),
             TextDetail("driver_version", L"version", driverVersion)}};
  if (error != ERROR_SUCCESS) {
    AddError(item, "version_error", L"provider or version could not be read: ", error);
  }
  return item;
}

bool IsPublishedName(std::wstring_view name) {
  constexpr std::size_t kPrefixLength = 3;  // "oem"
  const std::size_t end = name.find_first_not_of(L"0123456789", kPrefixLength);
  return name.length() > kPrefixLength && end != kPrefixLength && end != std::wstring_view::npos &&
         CompareNoCase(WString(name.substr(0, kPrefixLength)).c_str(), L"oem") == 0 &&
         CompareNoCase(WString(name.substr(end)).c_str(), L".inf") == 0;
}

}  // namespace kelvo
