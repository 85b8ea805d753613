#include "lib/sysinfo/terminal_server.h"

#include "lib/registry/registry_value.h"
#include "tests/support/testing.h"

TEST_CASE("a product suite is found in its list, a terminal server by what its Windows offers") {
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  REPLACE(RegOpenKeyExW, [](auto original, auto root, auto path, auto, REGSAM access, auto key) {
    CHECK(access == (KEY_READ | KEY_WOW64_64KEY));
    return original(root, path, 0, access, key);
  });
  struct List {
    DWORD type;
    const wchar_t* data;
    DWORD size;
    bool isFound;
  };
  // The last two have no terminator; the last one no last byte either.
  const List lists[] = {{REG_SZ, L"Terminal Server\0", 34, false},
                        {REG_MULTI_SZ, L"A\0terminal Server\0", 38, false},
                        {REG_MULTI_SZ, L"A\0\0Terminal Server\0", 40, false},
                        {REG_MULTI_SZ, L"A\0Terminal Server!", 34, true},
                        {REG_MULTI_SZ, L"A\0Terminal Server!", 33, true}};
  RegistryAccessFlags = KEY_WOW64_64KEY;
  for (const auto& [type, data, size, isFound] : lists) {
    RegSetKeyValueW(machine.key.get(), L"System\\CurrentControlSet\\Control\\ProductOptions",
                    L"ProductSuite", type, data, size);
    CHECK(IsProductSuiteInstalled(L"Terminal Server") == isFound);
    CHECK_FALSE(IsProductSuiteInstalled(nullptr));
  }
  const ReplacedExport present(
      "VerifyVersionInfoA", +[](OSVERSIONINFOEXA* record, DWORD type, DWORDLONG mask) -> BOOL {
        return record->wSuiteMask == 0x10 && type == 0x40 && mask == VerSetConditionMask(0, 64, 6);
      });
  struct Release {
    DWORD version;
    const char* missing;
    bool isServer;
  };
  const Release releases[] = {{0xC0000A04, "", false},
                              {4, "VerSetConditionMask", true},
                              {5, "", true},
                              {5, "VerSetConditionMask", false}};
  for (const auto& [version, missing, isServer] : releases) {
    REPLACE(GetVersion, [&](auto) { return version; });
    const ReplacedExport absent(missing, nullptr);
    CHECK(IsWinNTTerminalServer() == isServer);
  }
  RegistryAccessFlags = 0;
}
