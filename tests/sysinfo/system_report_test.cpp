#include "lib/sysinfo/system_report.h"

#include <shlobj.h>

#include "lib/registry/registry_string.h"
#include "lib/sysinfo/color_depth.h"
#include "tests/sysinfo/simulated_cases.h"

// Copies a text and returns its length.
static UINT Write(wchar_t* to, const std::wstring& text) {
  return static_cast<UINT>(lstrlenW(lstrcpyW(to, text.c_str())));
}

TEST_CASE("CollectSystemReport: gives each entry the value that its name describes") {
  const ReplacedExport computer(
      "GetComputerNameExW", +[](int format, wchar_t* name, DWORD* size) -> BOOL {
        *size = 10;
        return name != nullptr && Write(name, L"computer " + std::to_wstring(format)) > 0;
      });
  const ReplacedExport user(
      "GetUserNameExW", +[](int format, wchar_t* name, DWORD*) -> BOOL {
        return Write(name, L"user " + std::to_wstring(format)) > 0;
      });
  const ReplacedExport wow64(
      "GetSystemWow64DirectoryW", +[](wchar_t* path, UINT) { return Write(path, L"wow 64"); });
  REPLACE(GetComputerNameW, [](auto, auto to, auto) { return Write(to, L"netbios") > 0; });
  REPLACE(GetUserNameW, [](auto, auto to, auto) { return Write(to, L"account") > 0; });
  REPLACE(GetSystemDirectoryW, [](auto, auto to, auto) { return Write(to, L"system"); });
  REPLACE(SHGetSpecialFolderPathW, [](auto, HWND owner, wchar_t* path, int id, BOOL create) {
    CHECK(owner == nullptr);
    CHECK(create == FALSE);
    Write(path, L"folder " + std::to_wstring(id));
    return !Has("no folders");
  });
  HDC const desktopDevice = reinterpret_cast<HDC>(7);
  DWORD release;
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
      *static_cast<DWORD*>(data) =
          kind == TokenElevation ? (Has("elevated") ? 1 : 0) : Number("type", 0);
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
    return Has("no device") ? nullptr : desktopDevice;
  });
  REPLACE(GetDeviceCaps, [&](auto, HDC device, int index) {
    CHECK(device == desktopDevice);
    return static_cast<int>(index == PLANES      ? Number("planes", 1)
                            : index == BITSPIXEL ? Number("bits", 24)
                                                 : 0);
  });
  RunCases(L"report.txt", [&] {
    DWORD major, minor;
    std::sscanf(given.c_str(), "%lu.%lu", &major, &minor);
    const auto windows = PretendWindows(Number("platform", 2), major, minor);
    release = Number("platform", 2) < 2 ? 0xC0000A04 : minor << 8 | major;
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
    NameTextList report;
    CollectSystemReport(report);
    std::string seen;
    for (const auto& [name, text] : report) {
      const std::string entry = Ascii(name.c_str());
      if (entry.starts_with("Is")) {
        seen += text == L"1" ? " " + entry.substr(2, entry.find('(') - 2) : "";
      } else if (Has("whole report")) {
        seen += "\n    " + entry + ": " + Ascii(text.c_str());
      } else if (entry.starts_with("CSIDL") && Has("no folders")) {
        CHECK(text == L"failed to query " + name);
      }
    }
    CHECK(IsLowResolution(desktopDevice) == (Number("planes", 1) * Number("bits", 24) <= 16));
    return seen.substr(seen.find_first_not_of("\n "));
  });
}
