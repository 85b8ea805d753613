#include "lib/registry/registry_value.h"

#include "lib/registry/registry_binary.h"
#include "lib/registry/registry_key.h"
#include "lib/registry/registry_number.h"
#include "tests/support/catch.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

TEST_CASE("numbers") {
  const test::ScratchKey key;
  const auto read = [&] { return RegistryReadDword(HKEY_CURRENT_USER, key.Path(), L"n", 7); };
  CHECK(read() == 7);
  REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, key.Path(), L"n", 0xFEDCBA98) == 0);
  CHECK(read() == 0xFEDCBA98);
  CHECK(RegistryReadBoolean(HKEY_CURRENT_USER, key.Path(), L"n", false));
  CHECK(RegistryReadBoolean(HKEY_CURRENT_USER, key.Path(), L"missing", true));
  REQUIRE(WriteRegistryValue(HKEY_CURRENT_USER, key.Path(), L"n", REG_BINARY, "\1\0\0\0", 4) == 0);
  CHECK(read() == 7);
  REQUIRE(WriteRegistryValue(HKEY_CURRENT_USER, key.Path(), L"n", REG_DWORD, "12345", 5) == 0);
  CHECK(read() == 7);
}

TEST_CASE("bytes") {
  const test::ScratchKey key;
  std::string bytes = "before";
  const auto read = [&] { return RegistryReadBinary(HKEY_CURRENT_USER, key.Path(), L"b", bytes); };
  CHECK(read() == ERROR_FILE_NOT_FOUND);
  const std::string stored("\0\xFF\0", 3);
  for (const std::string& written : {std::string(), stored, std::string()}) {
    REQUIRE(RegistryWriteBinary(HKEY_CURRENT_USER, key.Path(), L"b", written) == 0);
    const std::string expected = written.empty() ? bytes : written;
    CHECK(read() == 0);
    CHECK(bytes == expected);
  }
  CHECK(bytes == stored);
}

TEST_CASE("a value is deleted, its key stays") {
  const test::ScratchKey key;
  CHECK_FALSE(RegistryKeyExists(HKEY_CURRENT_USER, key.Path()));
  CHECK(RegistryDeleteValue(HKEY_CURRENT_USER, key.Path(), L"n") == -1);
  REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, key.Path(), L"n", 1) == 0);
  CHECK(RegistryValueExists(HKEY_CURRENT_USER, key.Path(), L"n"));
  CHECK(RegistryDeleteValue(HKEY_CURRENT_USER, key.Path(), L"n") == 0);
  CHECK_FALSE(RegistryValueExists(HKEY_CURRENT_USER, key.Path(), L"n"));
  CHECK(RegistryDeleteValue(HKEY_CURRENT_USER, key.Path(), L"n") == -1);
  CHECK(RegistryKeyExists(HKEY_CURRENT_USER, key.Path()));
  CHECK(RegistryWriteDword(nullptr, L"cannot be created", L"n", 1) == -1);
}

}  // namespace kelvo
