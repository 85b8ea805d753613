#include <windows.h>

#include <cfgmgr32.h>
#include <setupapi.h>

#include <cstring>

#include "status/answer.h"
#include "status/application_status.h"
#include "status/driver_package_status.h"
#include "status/report.h"
#include "status/service_status.h"
#include "tests/support/testing.h"
#include "tool/dependent_applications.h"

TEST_CASE("QueryApplications: reports the list, or why sorrel.exe treats it as empty") {
  struct Row {
    DWORD type;
    std::wstring stored;
    std::vector<WString> names;
    std::string report;
  };
  const std::wstring longest = L"a;" + std::wstring(1021, L'x');
  const Row rows[] = {
      {REG_SZ,
       L";a;;\u0416",
       {L"A", L"\u0436", L"a;"},
       "present  application     A\npresent  application     \xD0\xB6\n"
       "absent   application     a;\n"},
      {REG_SZ, L"a;b", {}, "present  application     a\npresent  application     b\n"},
      {REG_SZ, L";", {}, "absent   application     the list is empty\n"},
      {REG_SZ, longest, {L"a"}, "present  application     a\n"},
      {REG_EXPAND_SZ,
       longest + L"x",
       {L"a\x1B"},
       "absent   application     a<U+001B>; the list is too long: sorrel.exe treats it as empty\n"},
      {REG_DWORD,
       L"1",
       {},
       "absent   application     the list is not text: sorrel.exe treats it as empty\n"},
  };
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  for (const auto& [type, stored, names, report] : rows) {
    StoreUnits(machine.key.get(), ServiceParametersKey, ApplicationsValueName, type,
               stored + L'\0');
    CHECK(TextReport(QueryApplications(names)) == report);
  }
}

TEST_CASE("IsPublishedName: accepts only oemNUMBER.inf") {
  CHECK_BOTH(IsPublishedName(L"oem0.inf"), IsPublishedName(L"OEM123.INF"));
  for (const wchar_t* const name : {L"oem.inf", L"oem1.info", L"oem1", L"oem", L"", L"oe1.inf",
                                    L"oem1x.inf", L"xem1.inf", L"oem1.inf.inf"}) {
    CHECK_FALSE(IsPublishedName(name));
  }
}

TEST_CASE("QueryService: finds the local service's device, ignores devices of remote services") {
  const std::wstring id = L"BTHENUM\\{3abb9028-beae-4bf1-acd7-5cd7d5e4e0ca}";
  struct Row {
    std::wstring ids, instanceId;
    DWORD listError, enumError;
    State state;
  };
  constexpr DWORD kEnd = ERROR_NO_MORE_ITEMS;
  const Row rows[] = {
      {L"x" + std::wstring(1, L'\0') + id, L"", 0, kEnd, State::kPresent},
      {L"x" + id, L"", 0, kEnd, State::kAbsent},
      {id + L"_VID&0001004c", L"", 0, kEnd, State::kAbsent},
      {id + L"_localmfg&000a", L"", 0, kEnd, State::kAbsent},
      {id + L"_LOCALMFG&0000", L"", 0, kEnd, State::kPresent},
      {id + L"_LOCALMFG&000a", L"B\\7&1&0&000000000000_00000001", 0, kEnd, State::kPresent},
      {id, L"B\\7&1&0&00112233445A_C00000000", 0, kEnd, State::kAbsent},
      {id, L"B\\7&1&0&0011223344_C00000000", 0, kEnd, State::kPresent},
      {L"", L"", 0, kEnd, State::kAbsent},
      {L"", L"", 0, ERROR_ACCESS_DENIED, State::kUnknown},
      {id, L"", ERROR_INVALID_DATA, 0, State::kAbsent},
      {id, L"", ERROR_ACCESS_DENIED, 0, State::kUnknown},
  };
  static Row row;
  static int open = 0;
  const ReplacedExport getDevices(
      "SetupDiGetClassDevsW",
      +[](const GUID* setupClass, PCWSTR enumerator, HWND, DWORD flags) -> HDEVINFO {
        CHECK(setupClass == nullptr);
        CHECK(enumerator == std::wstring(L"BTHENUM"));
        CHECK(flags == (DIGCF_ALLCLASSES | DIGCF_PRESENT));
        SetLastError(row.listError);
        return row.listError == 0 ? ++open, &open : INVALID_HANDLE_VALUE;
      });
  const ReplacedExport enumDevice(
      "SetupDiEnumDeviceInfo", +[](HDEVINFO, DWORD index, PSP_DEVINFO_DATA device) -> BOOL {
        CHECK(device->cbSize == sizeof(*device));
        SetLastError(row.enumError);
        return index < 2 ? TRUE : FALSE;
      });
  const ReplacedExport getProperty(
      "SetupDiGetDeviceRegistryPropertyW",
      +[](HDEVINFO, PSP_DEVINFO_DATA, DWORD property, PDWORD, PBYTE out, DWORD size,
          PDWORD needed) -> BOOL {
        CHECK(property == SPDRP_HARDWAREID);
        // Omits the terminating NULs, as a driver may do.
        const auto bytes = static_cast<DWORD>(row.ids.length() * sizeof(wchar_t));
        if (out == nullptr) {
          return *needed = bytes, FALSE;
        }
        std::copy_n(reinterpret_cast<const BYTE*>(row.ids.data()), size, out);
        return TRUE;
      });
  const ReplacedExport getInstanceId(
      "SetupDiGetDeviceInstanceIdW",
      +[](HDEVINFO, PSP_DEVINFO_DATA, PWSTR out, DWORD size, PDWORD) -> BOOL {
        CHECK(size == MAX_DEVICE_ID_LEN);
        return lstrcpyW(out, row.instanceId.c_str()) != nullptr;
      });
  const ReplacedExport destroy(
      "SetupDiDestroyDeviceInfoList", +[](HDEVINFO) -> BOOL { return --open == 0; });
  for (const Row& each : rows) {
    row = each;
    CAPTURE(row.ids);
    CHECK(QueryService(DeviceSearch::kBluetoothBus).state == row.state);
    CHECK(open == 0);
  }
}

// AnswerCommandLine's last output, in a fixed buffer, since Run can make allocations fail.
static char written[0x1000];

struct Conditions {
  HANDLE device = GetCurrentThread();  // stands for standard output and standard error
  BOOL writes = TRUE;
  bool hasMemory = true;
};

// Calls AnswerCommandLine with an option and, unless `value` is null, its value.
static int Run(const wchar_t* option, const wchar_t* value, const Conditions& conditions = {}) {
  const wchar_t* const arguments[] = {L"sorrel_status.exe", option, value};
  bool hasMemory = true;
  REPLACE(malloc, [&](auto original, auto size) { return hasMemory ? original(size) : nullptr; });
  REPLACE(GetStdHandle, [&](auto, auto) { return conditions.device; });
  REPLACE(WriteFile, [&](auto, auto, auto bytes, DWORD size, DWORD* done, auto) {
    std::copy_n(static_cast<const char*>(bytes), size, written);
    written[*done = size] = '\0';
    return conditions.writes;
  });
  hasMemory = conditions.hasMemory;
  const int code = AnswerCommandLine(value == nullptr ? 2 : 3, arguments);
  hasMemory = true;
  return code;
}

TEST_CASE("AnswerCommandLine: returns 3 if standard output exists but cannot be written to") {
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  CHECK(Run(L"--application", L"a", {nullptr, FALSE}) == 1);
  CHECK(Run(L"--application", L"a", {INVALID_HANDLE_VALUE, FALSE}) == 1);
  CHECK(Run(L"--application", L"a", {GetCurrentThread(), FALSE}) == 3);
  CHECK(Run(L"--help", nullptr, {GetCurrentThread(), FALSE}) == 3);
}

TEST_CASE("AnswerCommandLine: returns 3 if there is no memory, and writes the reason") {
  CHECK(Run(L"--version", nullptr, {GetCurrentThread(), TRUE, false}) == 3);
  CHECK(std::string(written) == "sorrel_status: not enough memory\r\n");
}

TEST_CASE("AnswerCommandLine: reports Windows 10, searches all token groups, reads the elevation") {
  constexpr DWORD kCount = 200;
  struct {
    TOKEN_GROUPS first;
    SID_AND_ATTRIBUTES others[kCount - 1];
  } token = {{kCount, {}}, {}};
  BYTE everyone[SECURITY_MAX_SID_SIZE];
  BYTE administrators[SECURITY_MAX_SID_SIZE];
  DWORD length = SECURITY_MAX_SID_SIZE;
  CreateWellKnownSid(WinWorldSid, nullptr, everyone, &length);
  length = SECURITY_MAX_SID_SIZE;
  CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &length);
  std::fill_n(token.first.Groups, kCount, SID_AND_ATTRIBUTES{everyone, SE_GROUP_ENABLED});
  REPLACE(GetTokenInformation,
          [&](auto original, auto asked, auto kind, void* out, DWORD size, DWORD* needed) -> BOOL {
            if (kind != TokenGroups) {
              std::memset(out, 0, size);  // not elevated
              return kind == TokenElevation || original(asked, kind, out, size, needed);
            }
            *needed = sizeof(token);
            return size < sizeof(token) ? FALSE : std::memcpy(out, &token, size) != nullptr;
          });
  const auto windows10 = PretendWindows(VER_PLATFORM_WIN32_NT, 10, 0);
  Run(L"--json", nullptr);
  CHECK(std::strstr(written, "\"administrator\": false"));
  // Simulates a filtered token, in which the Administrators group is deny-only.
  token.others[kCount - 2] = {administrators, SE_GROUP_USE_FOR_DENY_ONLY};
  Run(L"--json", nullptr);
  CHECK(std::strstr(written, "\"administrator\": true"));
  CHECK(std::strstr(written, "\"elevated\": false"));
  CHECK(std::strstr(written, "\"name\": \"Windows (10.0.1381)\""));
  CHECK(std::strstr(written, "\"version\": \"10.0.1381\""));
}
