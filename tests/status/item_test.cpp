#include "status/item.h"

#include <setupapi.h>
#include <wincrypt.h>

#include "status/application_status.h"
#include "status/certificate_status.h"
#include "status/driver_package_status.h"
#include "status/service_status.h"
#include "status/text_report.h"
#include "tests/support/testing.h"

TEST_CASE("what stands in place of the list decides what is told of an application") {
  struct Row {
    ApplicationList list;
    std::vector<WString> names;
    std::string report;
  };
  const Row rows[] = {
      {{0, REG_SZ, 8, L";a;;\u0416"},
       {L"A", L"\u0436", L"a;"},
       "present  application     A\npresent  application     \xD0\xB6\n"
       "absent   application     a;\n"},
      {{0, REG_SZ, 2048, L"a;b"}, {}, "present  application     a\npresent  application     b\n"},
      {{0, REG_SZ, 2, L";"}, {}, "absent   application     the list is empty\n"},
      {{0, REG_EXPAND_SZ, 2049, L""},
       {L"a\x1B"},
       "absent   application     a<U+001B>; the list is too long: sorrel.exe takes it as empty\n"},
      {{ERROR_PATH_NOT_FOUND, 0, 0, L""}, {L"a"}, "absent   application     a; none is recorded\n"},
      {{0x20001234, 0, 0, L""}, {L"a"}, "unknown  application     a; 20001234\n"},
  };
  for (const auto& [list, names, report] : rows) {
    CHECK(TextReport(DescribeApplications(list, names)) == report);
  }
  // Plain users may read the list, and no more.
  REPLACE(RegOpenKeyExW,
          [](auto, auto, auto, auto, REGSAM access, auto) { return static_cast<LSTATUS>(access); });
  CHECK(QueryApplicationList().error == KEY_READ);
}

TEST_CASE("a certificate expires after its last moment; a store is opened only to be read") {
  CertificateFacts facts{0, true, true, L"S", L"I", L"AB", {0xA9CF5280, 0x1CF3841}};
  for (const auto& [now, end] : {std::pair(0x7FU, ""), {0x80U, ""}, {0x81U, "; expired"}}) {
    CHECK(TextReport({DescribeCertificate("c", L"f", facts, {0xA9CF5200 + now, 0x1CF3841})}) ==
          std::string("present  c               f; subject S; issuer I; thumbprint AB;") +
              " valid until 2014-03-05T07:08:09Z" + end + "\n");
  }
  REPLACE(CertOpenStore, [](auto, auto, auto, auto, DWORD flags, auto) -> HCERTSTORE {
    return SetLastError(flags), nullptr;
  });
  CHECK(QueryStore(L"CA").error == 0x2C000);
}

TEST_CASE("a published INF is named oem, a number, .inf") {
  CHECK_BOTH(IsPublishedName(L"oem0.inf"), IsPublishedName(L"OEM123.INF"));
  for (const wchar_t* const name : {L"oem.inf", L"oem1.info", L"oem1", L"oem", L"", L"oe1.inf",
                                    L"oem1x.inf", L"xem1.inf", L"oem1.inf.inf"}) {
    CHECK_FALSE(IsPublishedName(name));
  }
}

TEST_CASE("the service's device is known by its hardware id") {
  const std::wstring id = L"BTHENUM\\{3abb9028-beae-4bf1-acd7-5cd7d5e4e0ca}_LOCALMFG&000a";
  struct Row {
    std::wstring ids;
    DWORD listError, enumError;
    State state;
  };
  const Row rows[] = {
      {L"x" + std::wstring(1, L'\0') + id, 0, ERROR_NO_MORE_ITEMS, State::kPresent},
      {L"x" + id, 0, ERROR_NO_MORE_ITEMS, State::kAbsent},
      {L"", 0, ERROR_NO_MORE_ITEMS, State::kAbsent},
      {L"", 0, ERROR_ACCESS_DENIED, State::kUnknown},
      {id, ERROR_INVALID_DATA, 0, State::kAbsent},
      {id, ERROR_ACCESS_DENIED, 0, State::kUnknown},
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
        // Without the terminators, which drivers may forget.
        const auto bytes = static_cast<DWORD>(row.ids.length() * sizeof(wchar_t));
        if (out == nullptr) {
          return *needed = bytes, FALSE;
        }
        std::copy_n(reinterpret_cast<const BYTE*>(row.ids.data()), size, out);
        return TRUE;
      });
  const ReplacedExport destroy(
      "SetupDiDestroyDeviceInfoList", +[](HDEVINFO) -> BOOL { return --open == 0; });
  for (const Row& each : rows) {
    row = each;
    const Item item = DescribeService(QueryServiceDevice(), 0);
    CHECK_BOTH(item.state == each.state, std::get<bool>(item.details.back().value));
    CHECK(open == 0);
  }
}
