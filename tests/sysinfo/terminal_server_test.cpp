#include "lib/sysinfo/terminal_server.h"

#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

namespace {

void StoreSuites(DWORD type, const wchar_t* data, DWORD size) {
  WriteRegistryValue(HKEY_LOCAL_MACHINE, L"System\\CurrentControlSet\\Control\\ProductOptions",
                     L"ProductSuite", type, data, size);
}

BOOL WINAPI VerifyTerminal(OSVERSIONINFOEXA* record, DWORD type, DWORDLONG mask) {
  return record->dwOSVersionInfoSize == 156 && record->wSuiteMask == 0x10 && type == 0x40 &&
         mask == VerSetConditionMask(0, 0x40, 6);
}

}  // namespace

TEST_CASE("a product suite is found in the list that is stored, whatever ends it") {
  struct Row {
    DWORD type;
    const wchar_t* data;
    DWORD size;
    const wchar_t* wanted;
    bool found;
  };
  const Row rows[] = {
      {REG_MULTI_SZ, L"A\0Blade\0", 18, L"Blade", true},
      {REG_MULTI_SZ, L"A\0Blade\0", 18, L"blade", false},
      {REG_MULTI_SZ, L"A\0\0Blade\0", 20, L"Blade", false},  // the list ends at the empty text
      {REG_MULTI_SZ, L"A\0Blade!", 14, L"Blade", true},      // no terminator, and none behind
      {REG_MULTI_SZ, L"A\0Blade!", 13, L"Blade", true},      // nor a last byte
      {REG_MULTI_SZ, L"x", 1, L"x", true},
      {REG_MULTI_SZ, L"x", 0, L"", false},
      {REG_MULTI_SZ, L"A\0", 6, nullptr, false},
      {REG_SZ, L"Blade", 12, L"Blade", false},
  };
  const test::StandInKey machine(HKEY_LOCAL_MACHINE);
  CHECK_FALSE(IsProductSuiteInstalled(L"A"));
  for (const Row& row : rows) {
    CAPTURE(row.data, row.size);
    StoreSuites(row.type, row.data, row.size);
    CHECK(IsProductSuiteInstalled(row.wanted) == row.found);
  }
}

TEST_CASE("a terminal server is recognised by what its Windows offers") {
  struct Row {
    DWORD version;
    const char* missing;
    bool answer;
  };
  const Row rows[] = {
      {0xC0000A04, "", false},  // Windows 98
      {0x0004, "VerifyVersionInfoA", true},
      {0x0105, "", true},
      {0x0105, "VerifyVersionInfoA", false},
      {0x0105, "VerSetConditionMask", false},
  };
  const test::StandInKey machine(HKEY_LOCAL_MACHINE);
  StoreSuites(REG_MULTI_SZ, L"Terminal Server\0", 34);
  for (const Row& row : rows) {
    CAPTURE(row.version, row.missing);
    const auto version = KELVO_REPLACE_IMPORT(GetVersion, [&](auto) { return row.version; });
    const test::ReplacedExport verify("VerifyVersionInfoA",
                                      reinterpret_cast<void*>(&VerifyTerminal));
    const test::ReplacedExport missing(row.missing, nullptr);
    CHECK(IsWinNTTerminalServer() == row.answer);
  }
}

}  // namespace kelvo
