#include "lib/registry/registry_value.h"

#include "lib/registry/registry_binary.h"
#include "lib/registry/registry_key.h"
#include "lib/registry/registry_number.h"
#include "tests/support/testing.h"

TEST_CASE("RegistryReadDword, RegistryReadBinary: read values; RegistryDeleteValue: keeps keys") {
  HKEY const root = HKEY_CURRENT_USER;
  const StandInKey user(root);
  const wchar_t* const key = L"key";
  std::string bytes = "before";
  CHECK_BOTH(!RegistryKeyExists(root, key), RegistryReadBoolean(root, key, L"n", true));
  CHECK(RegistryReadBinary(root, key, L"n", bytes) == ERROR_FILE_NOT_FOUND);
  CHECK(RegistryDeleteValue(root, key, L"n") == -1);
  CHECK(RegistryWriteDword(nullptr, L"cannot be created", L"n", 1) == -1);

  REQUIRE(RegistryWriteDword(root, key, L"n", 0xFEDCBA98) == 0);
  CHECK(RegistryReadDword(root, key, L"n", 7) == 0xFEDCBA98);
  CHECK_BOTH(RegistryReadBinary(root, key, L"n", bytes) == 0, bytes == "before");
  CHECK_BOTH(RegistryReadBoolean(root, key, L"n", false),
             !RegistryReadBoolean(root, key, L"", false));
  REQUIRE(WriteRegistryValue(root, key, L"n", REG_DWORD, "12345", 5) == 0);
  CHECK(RegistryReadDword(root, key, L"n", 7) == 7);

  // Simulates a value that became shorter after its size was queried.
  REPLACE(RegQueryValueExW, [](auto original, auto... given) {
    const LSTATUS status = original(given...);
    const auto& [opened, name, reserved, type, data, size] = std::tuple(given...);
    *size += data == nullptr && *size > 0 ? 3 : 0;
    return status;
  });
  for (const std::string& stored : {std::string("\0\xFF\0x", 4), std::string()}) {
    REQUIRE(RegistryWriteBinary(root, key, L"n", stored) == 0);
    CHECK(RegistryReadBinary(root, key, L"n", bytes) == 0);
    CHECK(bytes == std::string("\0\xFF\0x", 4));  // an empty value leaves `bytes` unchanged
    CHECK(RegistryReadDword(root, key, L"n", 7) == 7);
  }
  CHECK_BOTH(RegistryValueExists(root, key, L"n"), RegistryDeleteValue(root, key, L"n") == 0);
  CHECK_FALSE(RegistryValueExists(root, key, L"n"));
  CHECK_BOTH(RegistryDeleteValue(root, key, L"n") == -1, RegistryKeyExists(root, key));
}
