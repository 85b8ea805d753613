#include "lib/registry/registry_key_tree.h"

#include <string>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_number.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

namespace {

WString MakeTree(const test::ScratchKey& key) {
  const WString path = key.Path();
  for (const wchar_t* const below :
       {L"\\tree", L"\\tree\\a", L"\\tree\\a\\b", L"\\tree\\c", L"\\kept"}) {
    for (const wchar_t* const name : {L"", L"one", L"two"}) {
      REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, (path + below).c_str(), name, 1) == 0);
    }
  }
  return path;
}

bool Exists(const WString& path) { return RegistryKeyExists(HKEY_CURRENT_USER, path.c_str()); }

}  // namespace

TEST_CASE("a key goes with everything below it, with and without RegDeleteKeyExW") {
  const bool hasDeleteKeyEx = GENERATE(true, false);
  REGSAM view = 1;
  static REGSAM* seenView;
  seenView = &view;
  const test::ReplacedExport deleteKeyEx(
      "RegDeleteKeyExW",
      hasDeleteKeyEx ? reinterpret_cast<void*>(+[](HKEY key, LPCWSTR name, REGSAM access, DWORD) {
        *seenView = access;
        return RegDeleteKeyW(key, name);
      })
                     : nullptr);
  const test::ScratchKey key;
  const WString path = MakeTree(key);
  CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, key.Path(), L"tree") == 0);
  CHECK_FALSE(Exists(path + L"\\tree"));
  CHECK(Exists(path + L"\\kept"));
  CHECK(view == (hasDeleteKeyEx ? RegistryAccessFlags : 1));
}

TEST_CASE("without a name nothing is deleted") {
  const test::ScratchKey key;
  const WString path = MakeTree(key);
  for (const wchar_t* const none : {L"", static_cast<const wchar_t*>(nullptr)}) {
    CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, key.Path(), none) == ERROR_ACCESS_DENIED);
    CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, none, key.Path()) == ERROR_ACCESS_DENIED);
  }
  CHECK(Exists(path + L"\\tree\\a\\b"));
}

TEST_CASE("deletion ends with the first failure") {
  const test::ScratchKey key;
  const WString path = MakeTree(key);
  {
    const auto denied = KELVO_REPLACE_IMPORT(
        RegDeleteValueW, [](auto...) -> LSTATUS { return ERROR_ACCESS_DENIED; });
    CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, key.Path(), L"tree") == ERROR_ACCESS_DENIED);
  }
  CHECK(Exists(path + L"\\tree\\a\\b"));
  CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, key.Path(), L"missing") == ERROR_FILE_NOT_FOUND);
  CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, L"no such key", L"missing") ==
        ERROR_FILE_NOT_FOUND);
}

}  // namespace kelvo
