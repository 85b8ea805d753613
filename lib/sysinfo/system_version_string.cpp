#include "lib/sysinfo/system_version_string.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

#include "lib/platform/guarded_call.h"
#include "lib/platform/module.h"
#include "lib/registry/registry_key.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/format_text.h"
#include "lib/sysinfo/internal/nt_name.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kHotfix =
    L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";

// The structure that GetVersionExW filled: OSVERSIONINFOEXW (284 bytes), OSVERSIONINFOW (276
// bytes), or none.
enum class VersionRecord { kExtended, kShort, kNone };

// The caller must have zeroed `version`. When the result is kShort, the suite mask and the product
// type in `version` stay zero, because OSVERSIONINFOW lacks these fields.
VersionRecord QueryVersionRecord(OSVERSIONINFOEXW& version) {
  auto* const record = reinterpret_cast<OSVERSIONINFOW*>(&version);
  version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXW);
  if (GetVersionExW(record) != FALSE) {
    return VersionRecord::kExtended;
  }
  version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOW);
  return GetVersionExW(record) != FALSE ? VersionRecord::kShort : VersionRecord::kNone;
}

WORD QueryArchitecture() {
  SYSTEM_INFO system{};
  auto* const getNativeInfo =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), GetNativeSystemInfo);
  (getNativeInfo != nullptr ? getNativeInfo : GetSystemInfo)(&system);
  return system.wProcessorArchitecture;
}

// Returns only the low half of dwBuildNumber, because on Windows 9x the high half contains the
// version.
WORD Build(const OSVERSIONINFOEXW& version) { return LOWORD(version.dwBuildNumber); }

WString FormatNumbers(const OSVERSIONINFOEXW& version) {
  return FormatText(L"(%i.%i.%i)", version.dwMajorVersion, version.dwMinorVersion, Build(version));
}

void Append9xName(const OSVERSIONINFOEXW& version, WString& text) {
  struct Release {
    DWORD minor;
    const wchar_t* name;
    std::wstring_view editionLetters;
    const wchar_t* edition;
  };
  static constexpr Release kReleases[] = {
      {0, L"Microsoft Windows 95 ", L"CB", L"OSR2 "},
      {10, L"Microsoft Windows 98 ", L"A", L"SE "},
      {90, L"Microsoft Windows Millennium Edition", L"", L""},
  };
  for (const Release& release : kReleases) {
    if (version.dwMajorVersion == 4 && version.dwMinorVersion == release.minor) {
      text += release.name;
      if (release.editionLetters.find(version.szCSDVersion[1]) != std::wstring_view::npos) {
        text += release.edition;
      }
    }
  }
}

// Reads the product type from the registry, because OSVERSIONINFOW does not contain it. Appends the
// product type and the version to `text`. On failure, appends an error message instead and returns
// false.
bool AppendProductType(const OSVERSIONINFOEXW& version, OwnedRegistryKey& key, WString& text) {
  constexpr const wchar_t* kProductOptions = L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions";
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kProductOptions, 0, KEY_QUERY_VALUE, key.Receive()) !=
      ERROR_SUCCESS) {
    text += L"error obtaining Windows NT4 registry information";
    return false;
  }
  constexpr DWORD kLength = 100;
  // The buffer has one character more than RegQueryValueExW may write, so that a NUL follows even a
  // value that is stored without a NUL.
  std::array<wchar_t, kLength + 1> type{};
  DWORD size = kLength * sizeof(wchar_t);
  if (RegQueryValueExW(key.get(), L"ProductType", nullptr, nullptr,
                       reinterpret_cast<BYTE*>(type.data()), &size) != ERROR_SUCCESS ||
      size > kLength * sizeof(wchar_t)) {
    // As the header says, the key stays open.
    key.release();
    text += L"error obtaining Windows NT4 registry product information";
    return false;
  }
  key.reset();
  struct Product {
    const wchar_t* type;
    const wchar_t* text;
  };
  static constexpr Product kProducts[] = {
      {L"WINNT", L"Workstation "}, {L"LANMANNT", L"Server "}, {L"SERVERNT", L"Advanced Server "}};
  for (const Product& product : kProducts) {
    if (CompareNoCase(type.data(), product.type) == 0) {
      text += product.text;
    }
  }
  text += FormatText(L"%d.%d ", version.dwMajorVersion, version.dwMinorVersion);
  return true;
}

void AppendNumbers(const OSVERSIONINFOEXW& version, OwnedRegistryKey& key, WString& text) {
  // The array has one character more than szCSDVersion, so that a NUL always follows the text. A
  // WString is not used here, because a structured exception in a call below would skip its
  // destructor.
  std::array<wchar_t, std::extent_v<decltype(version.szCSDVersion)> + 1> servicePack{};
  std::ranges::copy(version.szCSDVersion, servicePack.begin());
  if (version.dwMajorVersion == 4 && CompareNoCase(servicePack.data(), L"Service Pack 6") == 0) {
    const bool hasHotfix = RegOpenKeyExW(HKEY_LOCAL_MACHINE, kHotfix, 0, KEY_QUERY_VALUE,
                                         key.Receive()) == ERROR_SUCCESS;
    text += FormatText(L"%s (Build %d)", hasHotfix ? L"Service Pack 6a" : servicePack.data(),
                       Build(version));
    // Closes the key here, so that GuardedCall also catches an exception in RegCloseKey.
    key.reset();
  } else if (servicePack.front() == L'\0') {
    text += FormatNumbers(version);
  } else {
    text += FormatText(L"(%i.%i.%i %s)", version.dwMajorVersion, version.dwMinorVersion,
                       Build(version), servicePack.data());
  }
}

// Writes the version line to `text`, which must be empty. If an exception ends this function, `key`
// may still own an open registry key. The caller must then reset `key`.
void Describe(OwnedRegistryKey& key, WString& text) {
  OSVERSIONINFOEXW version{};
  const VersionRecord record = QueryVersionRecord(version);
  if (record == VersionRecord::kNone) {
    text = L"queryingg OSVERSIONINFOEX and OSVERSIONINFO failed...";
    return;
  }
  const WORD architecture = QueryArchitecture();
  switch (version.dwPlatformId) {
    case VER_PLATFORM_WIN32s:
      text = L"Microsoft Win32s";
      break;
    case VER_PLATFORM_WIN32_WINDOWS:
      Append9xName(version, text);
      break;
    case VER_PLATFORM_WIN32_NT:
      internal::AppendNtName(version, architecture, text);
      if (record == VersionRecord::kExtended || AppendProductType(version, key, text)) {
        AppendNumbers(version, key, text);
      }
      break;
    default:
      break;
  }
}

}  // namespace

WString GetSystemVersionString() {
  OwnedRegistryKey key;
  WString text;
  if (!GuardedCall([&] { Describe(key, text); })) {
    GuardedCall([&] { key.reset(); });
    text += L"catch(unhandled exception) while querying system version";
  }
  return text;
}

WString GetSystemVersionNumbers() {
  WString numbers;
  GuardedCall([&] {
    OSVERSIONINFOEXW version{};
    if (QueryVersionRecord(version) != VersionRecord::kNone) {
      numbers = FormatNumbers(version);
    }
  });
  // Even when memory has run out, the code below succeeds, because it allocates no memory: a string
  // as short as "0.0.0.0" is stored inside the WString object, and the result is moved, not copied.
  if (numbers.empty()) {
    numbers = L"0.0.0.0";
  }
  return numbers;
}

}  // namespace kelvo
