#include "lib/sysinfo/system_report.h"

#include <shlobj.h>

#include <sstream>

#include "lib/registry/registry_string.h"
#include "lib/sysinfo/color_depth.h"
#include "tests/sysinfo/played_machine.h"

static BOOL Write(wchar_t* to, const std::wstring& text) { return lstrcpyW(to, text.c_str()), 6; }
static BOOL WINAPI TellComputerName(int format, wchar_t* name, DWORD* size) {
  *size = 10;
  return name != nullptr && Write(name, L"computer " + std::to_wstring(format));
}
static BOOL WINAPI TellUserName(int format, wchar_t* name, DWORD*) {
  return Write(name, L"user " + std::to_wstring(format));
}
static UINT WINAPI TellWow64Directory(wchar_t* path, UINT) { return UINT(Write(path, L"wow 64")); }

TEST_CASE("each entry of the report asks what its name says") {
  const ReplacedExport computer("GetComputerNameExW", &TellComputerName);
  const ReplacedExport user("GetUserNameExW", &TellUserName);
  const ReplacedExport wow64("GetSystemWow64DirectoryW", &TellWow64Directory);
  REPLACE(GetComputerNameW, [](auto, auto to, auto) { return Write(to, L"netbios"); });
  REPLACE(GetUserNameW, [](auto, auto to, auto) { return Write(to, L"account"); });
  REPLACE(GetSystemDirectoryW, [](auto, auto to, auto) { return UINT(Write(to, L"system")); });
  REPLACE(SHGetSpecialFolderPathW, [](auto, HWND owner, wchar_t* path, int id, BOOL create) {
    CHECK(owner == nullptr);
    CHECK(create == FALSE);
    return Write(path, L"folder " + std::to_wstring(id)) * (Has("no folders") ? 0 : 1);
  });
  HDC const desktopDevice = reinterpret_cast<HDC>(7);
  DWORD platform, major, minor, release, elevated, type, planes, bits;
  int openDevices = 0;
  REPLACE(GetVersionExW, [&](auto, OSVERSIONINFOW* record) {
    *record = {record->dwOSVersionInfoSize, major, minor, 0, platform, L""};
    return TRUE;
  });
  REPLACE(GetVersion, [&](auto) { return release; });
  const ReplacedExport verify(
      "VerifyVersionInfoA", +[](OSVERSIONINFOEXA* record, DWORD kind, DWORDLONG mask) -> BOOL {
        return record->wSuiteMask == 0x10 && kind == 0x40 &&
               mask == VerSetConditionMask(0, 0x40, VER_AND) && Has("terminal suite");
      });
  REPLACE(OpenThreadToken, [](auto...) {
    SetLastError(Has("no thread token") ? ERROR_NO_TOKEN : ERROR_ACCESS_DENIED);
    return FALSE;
  });
  REPLACE(GetTokenInformation, [&](auto, auto, int kind, void* data, DWORD size, auto) {
    if (kind != TokenGroups) {
      *static_cast<DWORD*>(data) = kind == TokenElevation ? elevated : type;
      return size == 4;
    }
    static BYTE sid[SECURITY_MAX_SID_SIZE];
    DWORD sidSize = sizeof(sid);
    CreateWellKnownSid(Has("administrator") ? WinBuiltinAdministratorsSid : WinBuiltinUsersSid,
                       nullptr, sid, &sidSize);
    *static_cast<TOKEN_GROUPS*>(data) = {1, {{sid, SE_GROUP_USE_FOR_DENY_ONLY}}};
    return size == 1024 && !Has("many groups");
  });
  REPLACE(GetDC, [&](auto, HWND window) {
    CHECK(window == GetDesktopWindow());
    return Has("no device") ? nullptr : (++openDevices, desktopDevice);
  });
  REPLACE(ReleaseDC, [&](auto, HWND window, HDC device) {
    CHECK(window == GetDesktopWindow());
    CHECK(device == desktopDevice);
    return openDevices--;
  });
  REPLACE(GetDeviceCaps, [&](auto, HDC device, int index) {
    CHECK(device == desktopDevice);
    return static_cast<int>(index == PLANES ? planes : index == BITSPIXEL ? bits : 0);
  });
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\report.txt")));
  std::string seen;
  NameTextList report;
  while (std::getline(cases, given)) {
    if (std::sscanf(given.c_str(),
                    "platform %lu, %lu.%lu, GetVersion %lx, elevated %lu, type %lu, planes %lu, "
                    "bits %lu",
                    &platform, &major, &minor, &release, &elevated, &type, &planes, &bits) != 8) {
      continue;
    }
    const StandInKey userKey(HKEY_CURRENT_USER);
    const StandInKey machineKey(HKEY_LOCAL_MACHINE);
    if (Has("variables")) {
      RegistryWriteString(userKey.key.get(), L"Environment", L"MINE", L"mine");
      RegistryWriteString(machineKey.key.get(),
                          L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment",
                          L"OURS", L"everybody's");
    }
    if (Has("terminal suite")) {
      RegSetKeyValueW(machineKey.key.get(), L"System\\CurrentControlSet\\Control\\ProductOptions",
                      L"ProductSuite", REG_MULTI_SZ, L"Terminal Server\0", 34);
    }
    const ReplacedExport absent(Has("old ntdll") ? "VerSetConditionMask" : "", nullptr);
    CollectSystemReport(report);
    seen += given + "\n is";
    for (const auto& [name, text] : report) {
      if (name.find(L"Is") == 0) {
        seen += text == L"1" ? " " + Ascii(name.c_str()) : "";
      } else if (Has("whole report")) {
        seen += "\n" + Ascii((name + L": " + text).c_str());
      }
    }
    seen += "\n";
    CHECK(openDevices == 0);
    CHECK(IsLowResolution(desktopDevice) == (planes * bits <= 16));
  }
  CheckAgainstFile(seen, L"report.txt");
}
