#include "lib/registry/registry_key.h"
#include "lib/registry/registry_key_tree.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_write_access.h"
#include "tests/support/testing.h"

// Each test case replaces this key with a StandInKey, so that no bug can delete the user's data.
HKEY const kRoot = HKEY_CURRENT_USER;

TEST_CASE("RegistryCanWrite: tries to write only in an elevated process or before Windows Vista") {
  const DWORD rows[][5] = {
      {5, 0, 1, 0, 1}, {5, 0, 0, 1, 1}, {6, 1, 1, 0, 1}, {6, 1, 0, 1, 1}, {6, 0, 1, 1, 0}};
  for (const auto& [major, elevated, isWritable, answer, tries] : rows) {
    INFO("NT ", major, ", elevated ", elevated, ", writable ", isWritable);
    const StandInKey user(kRoot);
    DWORD tried = 0;
    const auto windows = PretendWindows(2, major, 0);
    REPLACE(GetTokenInformation, [&](auto, auto, auto, void* elevation, auto...) {
      *static_cast<DWORD*>(elevation) = elevated;
      return TRUE;
    });
    REPLACE(RegSetValueExW, [&](auto original, auto... arguments) {
      ++tried;
      return isWritable != 0 ? original(arguments...) : ERROR_ACCESS_DENIED;
    });
    CHECK_BOTH(RegistryCanWrite(kRoot, L"key") == static_cast<int>(answer), tried == tries);
    CHECK_FALSE(RegistryValueExists(kRoot, L"key", L"RegCheck"));
  }
}

TEST_CASE("RegistryDeleteKeyTree: deletes a key and its subkeys, with or without RegDeleteKeyExW") {
  const StandInKey user(kRoot);
  const auto remove = [](const wchar_t* name) {
    return RegistryDeleteKeyTree(kRoot, L"key", name);
  };
  for (const char* const absent : {"", "RegDeleteKeyExW"}) {
    const ReplacedExport replaced(absent, nullptr);
    for (const auto* const path :
         {L"key\\tree\\a\\b", L"key\\tree\\c", L"key\\tree", L"key\\kept"}) {
      REQUIRE(RegistryWriteDword(kRoot, path, L"", 1) == 0);
      REQUIRE(RegistryWriteDword(kRoot, path, L"two", 1) == 0);
    }
    {
      REPLACE(RegDeleteValueW, [](auto...) -> LSTATUS { return 1234; });
      CHECK(remove(L"tree") == 1234);
    }
    CHECK_BOTH(remove(L"") == ERROR_ACCESS_DENIED, remove(nullptr) == ERROR_ACCESS_DENIED);
    CHECK(RegistryDeleteKeyTree(kRoot, L"", L"key") == ERROR_ACCESS_DENIED);
    CHECK(RegistryKeyExists(kRoot, L"key\\tree\\a\\b"));
    CHECK_BOTH(remove(L"tree") == 0, remove(L"tree") == ERROR_FILE_NOT_FOUND);
    CHECK_BOTH(!RegistryKeyExists(kRoot, L"key\\tree"), RegistryKeyExists(kRoot, L"key\\kept"));
  }
}

TEST_CASE("RegistryDeleteKeyTree: deletes a very deep tree without overflowing the stack") {
  const StandInKey user(kRoot);
  const std::wstring path = L"key\\tree\\" + std::wstring(254, L'n');
  OwnedRegistryKey deepest;
  REQUIRE(CreateRegistryKey(kRoot, path.c_str(), deepest) == 0);
  // Windows limits a tree to 512 levels; Wine does not.
  for (int level = 0; level < 1'600; ++level) {
    OwnedRegistryKey below;
    if (CreateRegistryKey(deepest.get(), L"k", below) != 0) {
      break;
    }
    deepest = std::move(below);
  }
  deepest.reset();
  CHECK(RegistryDeleteKeyTree(kRoot, L"key", L"tree") == 0);
  CHECK_FALSE(RegistryKeyExists(kRoot, L"key\\tree"));
}
