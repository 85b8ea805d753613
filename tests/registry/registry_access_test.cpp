#include <vector>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_key_tree.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_write_access.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

TEST_CASE("each operation asks for its rights and the view, and closes what it opened") {
  struct Row {
    const char* what;
    void (*run)(const wchar_t* path);
    std::vector<REGSAM> rights;
  };
  const std::vector<Row> rows = {
      {"read",
       [](const wchar_t* p) { RegistryReadString(HKEY_CURRENT_USER, p, L"n", L""); },
       {0x20119}},
      {"exists",
       [](const wchar_t* p) { RegistryValueExists(HKEY_CURRENT_USER, p, L"n"); },
       {0x20119}},
      {"write",
       [](const wchar_t* p) { RegistryWriteDword(HKEY_CURRENT_USER, p, L"n", 1); },
       {0x20106}},
      {"delete value",
       [](const wchar_t* p) { RegistryDeleteValue(HKEY_CURRENT_USER, p, L"n"); },
       {0x102}},
      {"delete tree",
       [](const wchar_t* p) { RegistryDeleteKeyTree(HKEY_CURRENT_USER, p, L"sub"); },
       {0x2010E, 0x2010F, 0x2010F, 0x2010E}},
  };
  for (const Row& row : rows) {
    const test::ScratchKey key;
    const WString subkey = WString(key.Path()) + L"\\sub";
    REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, key.Path(), L"n", 1) == 0);
    REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, subkey.c_str(), L"n", 1) == 0);
    std::vector<REGSAM> rights;
    int open = 0;
    const auto opened = KELVO_REPLACE_IMPORT(
        RegOpenKeyExW,
        [&](auto* original, HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY result) {
          rights.push_back(access);
          ++open;
          return original(root, path, options, access, result);
        });
    const auto created = KELVO_REPLACE_IMPORT(
        RegCreateKeyExW, [&](auto* original, HKEY root, LPCWSTR path, DWORD reserved,
                             LPWSTR className, DWORD options, REGSAM access, auto... rest) {
          CHECK((options == REG_OPTION_NON_VOLATILE && *className == L'\0'));
          rights.push_back(access);
          ++open;
          return original(root, path, reserved, className, options, access, rest...);
        });
    const auto closed = KELVO_REPLACE_IMPORT(RegCloseKey, [&](auto* original, HKEY handle) {
      --open;
      return original(handle);
    });
    RegistryAccessFlags = KEY_WOW64_64KEY;
    row.run(key.Path());
    RegistryAccessFlags = 0;
    INFO(row.what);
    CHECK(rights == row.rights);
    CHECK(open == 0);
  }
}

TEST_CASE("write access is probed where a write would be real") {
  struct Row {
    DWORD majorVersion;
    bool elevated;
    bool writable;
    int answer;
    bool tried;
  };
  const Row rows[] = {
      {5, false, true, 0, true}, {5, false, false, 1, true}, {6, true, true, 0, true},
      {6, true, false, 1, true}, {6, false, true, 1, false},
  };
  for (const Row& row : rows) {
    const test::ScratchKey key;
    bool tried = false;
    const auto version = KELVO_REPLACE_IMPORT(GetVersionExW, [&](auto*, LPOSVERSIONINFOW version) {
      version->dwPlatformId = VER_PLATFORM_WIN32_NT;
      version->dwMajorVersion = row.majorVersion;
      return TRUE;
    });
    const auto token = KELVO_REPLACE_IMPORT(
        GetTokenInformation,
        [&](auto*, HANDLE, TOKEN_INFORMATION_CLASS, LPVOID elevation, DWORD, PDWORD) {
          static_cast<TOKEN_ELEVATION*>(elevation)->TokenIsElevated = row.elevated ? 1 : 0;
          return TRUE;
        });
    const auto write = KELVO_REPLACE_IMPORT(RegSetValueExW, [&](auto* original, auto... arguments) {
      tried = true;
      return row.writable ? original(arguments...) : ERROR_ACCESS_DENIED;
    });
    CAPTURE(row.majorVersion, row.elevated, row.writable);
    CHECK(RegistryCanWrite(HKEY_CURRENT_USER, key.Path()) == row.answer);
    CHECK(tried == row.tried);
    CHECK_FALSE(RegistryValueExists(HKEY_CURRENT_USER, key.Path(), L"RegCheck"));
  }
}

}  // namespace kelvo
