#include <tuple>
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

namespace {
HKEY const kRoot = HKEY_CURRENT_USER;
}

TEST_CASE("each operation asks for its rights and the view, and closes what it opened") {
  struct Row {
    const char* what;
    void (*run)(const wchar_t* path);
    std::vector<REGSAM> rights;
  };
  const Row rows[] = {
      {"read", [](auto* path) { RegistryReadString(kRoot, path, L"n", L""); }, {0x20119}},
      {"exists", [](auto* path) { RegistryValueExists(kRoot, path, L"n"); }, {0x20119}},
      {"write", [](auto* path) { RegistryWriteDword(kRoot, path, L"n", 1); }, {0x20106}},
      {"delete value", [](auto* path) { RegistryDeleteValue(kRoot, path, L"n"); }, {0x102}},
      {"delete tree",
       [](auto* path) { RegistryDeleteKeyTree(kRoot, path, L"sub"); },
       {0x2010E, 0x2010F, 0x2010F, 0x2010E}},
  };
  for (const Row& row : rows) {
    const test::ScratchKey key;
    REQUIRE(RegistryWriteDword(kRoot, (WString(key.Path()) + L"\\sub").c_str(), L"n", 1) == 0);
    REQUIRE(RegistryWriteDword(kRoot, key.Path(), L"n", 1) == 0);
    std::vector<REGSAM> rights;
    std::ptrdiff_t closedKeys = 0;
    const auto opened = KELVO_REPLACE_IMPORT(
        RegOpenKeyExW,
        [&](auto* original, HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY result) {
          rights.push_back(access);
          return original(root, path, options, access, result);
        });
    const auto created = KELVO_REPLACE_IMPORT(
        RegCreateKeyExW, [&](auto* original, HKEY root, LPCWSTR path, DWORD reserved,
                             LPWSTR className, DWORD options, REGSAM access, auto... rest) {
          CHECK((options == REG_OPTION_NON_VOLATILE && *className == L'\0'));
          rights.push_back(access);
          return original(root, path, reserved, className, options, access, rest...);
        });
    const auto closed = KELVO_REPLACE_IMPORT(RegCloseKey, [&](auto* original, HKEY handle) {
      ++closedKeys;
      return original(handle);
    });
    RegistryAccessFlags = KEY_WOW64_64KEY;
    row.run(key.Path());
    RegistryAccessFlags = 0;
    INFO(row.what);
    CHECK(rights == row.rights);
    CHECK(closedKeys == std::ssize(rights));
  }
}

TEST_CASE("write access is probed where a write would be real") {
  // The major version, elevation, whether the write succeeds; the answer, and whether one was
  // tried.
  const std::tuple<DWORD, DWORD, bool, int, bool> rows[] = {{5, 0, true, 0, true},
                                                            {5, 0, false, 1, true},
                                                            {6, 1, true, 0, true},
                                                            {6, 1, false, 1, true},
                                                            {6, 0, true, 1, false}};
  for (const auto& [major, elevated, writable, answer, expectsTry] : rows) {
    CAPTURE(major, elevated, writable);
    const test::ScratchKey key;
    bool tried = false;
    const auto version = KELVO_REPLACE_IMPORT(GetVersionExW, [&](auto*, auto* record) {
      record->dwPlatformId = VER_PLATFORM_WIN32_NT;
      record->dwMajorVersion = major;
      return TRUE;
    });
    const auto token = KELVO_REPLACE_IMPORT(
        GetTokenInformation,
        [&](auto*, HANDLE, TOKEN_INFORMATION_CLASS, LPVOID elevation, auto...) {
          static_cast<TOKEN_ELEVATION*>(elevation)->TokenIsElevated = elevated;
          return TRUE;
        });
    const auto write = KELVO_REPLACE_IMPORT(RegSetValueExW, [&](auto* original, auto... arguments) {
      tried = true;
      return writable ? original(arguments...) : ERROR_ACCESS_DENIED;
    });
    CHECK(RegistryCanWrite(kRoot, key.Path()) == answer);
    CHECK(tried == expectsTry);
    CHECK_FALSE(RegistryValueExists(kRoot, key.Path(), L"RegCheck"));
  }
}

}  // namespace kelvo
