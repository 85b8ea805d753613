#include "lib/registry/registry_key.h"
#include "lib/registry/registry_key_tree.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_write_access.h"
#include "tests/support/testing.h"

HKEY const kRoot = HKEY_CURRENT_USER;

TEST_CASE("write access is probed where a write would be real") {
  // The major version, elevation, whether the write succeeds; the answer, whether one was tried.
  const DWORD rows[][5] = {
      {5, 0, 1, 0, 1}, {5, 0, 0, 1, 1}, {6, 1, 1, 0, 1}, {6, 1, 0, 1, 1}, {6, 0, 1, 1, 0}};
  for (const auto& [major, elevated, isWritable, answer, tries] : rows) {
    CAPTURE(major);
    CAPTURE(elevated);
    CAPTURE(isWritable);
    const ScratchKey key;
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
    CHECK_BOTH(RegistryCanWrite(kRoot, key.c_str()) == static_cast<int>(answer), tried == tries);
    CHECK_FALSE(RegistryValueExists(kRoot, key.c_str(), L"RegCheck"));
  }
}

TEST_CASE("a key goes with everything below it, with and without RegDeleteKeyExW") {
  const auto deleteKeyEx = +[](HKEY key, LPCWSTR name, REGSAM view, DWORD) {
    return view == KEY_WOW64_64KEY ? RegDeleteTreeW(key, name) : LSTATUS{1234};
  };
  const ScratchKey key;
  const auto exists = [&](auto below) { return RegistryKeyExists(kRoot, (key + below).c_str()); };
  const auto remove = [&](auto name) { return RegistryDeleteKeyTree(kRoot, key.c_str(), name); };
  for (const auto function : {deleteKeyEx, decltype(deleteKeyEx){}}) {
    for (const wchar_t* const below : {L"\\tree\\a\\b", L"\\tree\\a", L"\\tree\\c", L"\\kept"}) {
      REQUIRE(RegistryWriteDword(kRoot, (key + below).c_str(), L"", 1) == 0);
      REQUIRE(RegistryWriteDword(kRoot, (key + below).c_str(), L"two", 1) == 0);
    }
    {
      REPLACE(RegDeleteValueW, [](auto...) -> LSTATUS { return 1234; });
      CHECK(remove(L"tree") == 1234);
    }
    CHECK_BOTH(remove(L"") == ERROR_ACCESS_DENIED, remove(nullptr) == ERROR_ACCESS_DENIED);
    CHECK(RegistryDeleteKeyTree(kRoot, L"", key.c_str()) == ERROR_ACCESS_DENIED);
    CHECK(exists(L"\\tree\\a\\b"));
    const ReplacedExport replaced("RegDeleteKeyExW", function);
    REPLACE(RegDeleteKeyW, [&](auto original, auto... given) {
      return function == nullptr ? original(given...) : LSTATUS{1234};
    });
    RegistryAccessFlags = KEY_WOW64_64KEY;
    CHECK_BOTH(remove(L"tree") == 0, remove(L"tree") == ERROR_FILE_NOT_FOUND);
    CHECK_BOTH(!exists(L"\\tree"), exists(L"\\kept"));
    RegistryAccessFlags = 0;
  }
}

TEST_CASE("a tree of any depth is deleted without a stack for it") {
  const ScratchKey key;
  OwnedRegistryKey deepest;
  REQUIRE(CreateRegistryKey(kRoot, (key + L"\\tree\\" + std::wstring(254, L'n')).c_str(),
                            deepest) == 0);
  // Windows ends a tree at 512 levels, Wine does not.
  for (int level = 0; level < 1'600; ++level) {
    OwnedRegistryKey below;
    if (CreateRegistryKey(deepest.get(), L"k", below) != 0) {
      break;
    }
    deepest = std::move(below);
  }
  deepest.reset();
  CHECK(RegistryDeleteKeyTree(kRoot, key.c_str(), L"tree") == 0);
  CHECK_FALSE(RegistryKeyExists(kRoot, (key + L"\\tree").c_str()));
}
