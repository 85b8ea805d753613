#pragma once

// Declares those functions, types and constants of difxapi.dll that sorrel.exe uses. The DLL is
// part of Windows and installs drivers. Its header comes from the Windows Driver Kit; the Windows
// SDKs do not have this header.

#include <windows.h>

extern "C" {

enum DIFXAPI_LOG : int {
  DIFXAPI_SUCCESS = 0,
  DIFXAPI_INFO = 1,
  DIFXAPI_WARNING = 2,
  DIFXAPI_ERROR = 3,
};

using DIFXAPILOGCALLBACK_W = void(CALLBACK*)(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                                             PVOID context);

struct INSTALLERINFO_W {
  PWSTR pApplicationId;
  PWSTR pDisplayName;
  PWSTR pProductName;
  PWSTR pMfgName;
};

inline constexpr DWORD DRIVER_PACKAGE_SILENT = 0x00000002;
inline constexpr DWORD ERROR_NO_DEVICE_ID = 0xE0000301;

// Sets the callback for log events; null removes it.
void WINAPI SetDifxLogCallbackW(DIFXAPILOGCALLBACK_W callback, PVOID context);

// Installs the driver package of the INF file at `infPath`, a fully qualified path. Stores in
// `needReboot` whether the installation needs a restart. Returns 0 on success, otherwise
// an error code of Win32, SetupAPI or difxapi.dll.
DWORD WINAPI DriverPackageInstallW(PCWSTR infPath, DWORD flags,
                                   const INSTALLERINFO_W* installerInfo, BOOL* needReboot);
}
