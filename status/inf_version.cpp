#include "status/inf_version.h"

#include <setupapi.h>

#include "lib/platform/system_library.h"

namespace kelvo {

namespace {

WString FullPath(const wchar_t* path) {
  const DWORD length = GetFullPathNameW(path, 0, nullptr, nullptr);
  WString full(length, L'\0');
  GetFullPathNameW(path, length, full.data(), nullptr);
  return full;
}

DWORD ReadEntry(decltype(&SetupGetLineTextW) getLineText, HINF inf, const wchar_t* key,
                WString& text) {
  WString buffer(MAX_INF_STRING_LENGTH, L'\0');
  if (getLineText(nullptr, inf, L"Version", key, buffer.data(), MAX_INF_STRING_LENGTH, nullptr) ==
      FALSE) {
    return GetLastError();
  }
  text = buffer.c_str();
  return ERROR_SUCCESS;
}

}  // namespace

InfVersion ReadInfVersion(const wchar_t* infPath) {
  InfVersion version;
  const OwnedModule library = LoadSystemLibrary(L"setupapi.dll");
  auto* const open = KELVO_FIND_FUNCTION(library.get(), SetupOpenInfFileW);
  auto* const close = KELVO_FIND_FUNCTION(library.get(), SetupCloseInfFile);
  auto* const getLineText = KELVO_FIND_FUNCTION(library.get(), SetupGetLineTextW);
  if (open == nullptr || close == nullptr || getLineText == nullptr) {
    version.error = GetLastError();
    return version;
  }
  // A bare name would be looked for in Windows' INF folder.
  HINF const inf = open(FullPath(infPath).c_str(), nullptr, INF_STYLE_WIN4, nullptr);
  if (inf == INVALID_HANDLE_VALUE) {
    version.error = GetLastError();
    return version;
  }
  const DWORD providerError = ReadEntry(getLineText, inf, L"Provider", version.provider);
  const DWORD versionError = ReadEntry(getLineText, inf, L"DriverVer", version.driverVersion);
  version.error = providerError != ERROR_SUCCESS ? providerError : versionError;
  close(inf);
  return version;
}

}  // namespace kelvo
