#include "lib/registry/registry_key_tree.h"

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_number.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

namespace {

bool Exists(const test::ScratchKey& key, const wchar_t* below) {
  return RegistryKeyExists(HKEY_CURRENT_USER, (WString(key.Path()) + below).c_str());
}

REGSAM seenView = 1;

LSTATUS DeleteKeyEx(HKEY key, LPCWSTR name, REGSAM view, DWORD /*reserved*/) {
  seenView = view;
  return RegDeleteKeyW(key, name);
}

}  // namespace

TEST_CASE("a key goes with everything below it, with and without RegDeleteKeyExW") {
  const test::ScratchKey key;
  const auto remove = [&](const wchar_t* name) {
    return RegistryDeleteKeyTree(HKEY_CURRENT_USER, key.Path(), name);
  };
  for (void* const deleteKeyEx :
       {reinterpret_cast<void*>(&DeleteKeyEx), static_cast<void*>(nullptr)}) {
    for (const wchar_t* const below :
         {L"\\tree", L"\\tree\\a", L"\\tree\\a\\b", L"\\tree\\c", L"\\kept"}) {
      for (const wchar_t* const name : {L"", L"one", L"two"}) {
        REQUIRE(RegistryWriteDword(HKEY_CURRENT_USER, (WString(key.Path()) + below).c_str(), name,
                                   1) == 0);
      }
    }
    {
      const auto denied = KELVO_REPLACE_IMPORT(
          RegDeleteValueW, [](auto...) -> LSTATUS { return ERROR_WRITE_PROTECT; });
      CHECK(remove(L"tree") == ERROR_WRITE_PROTECT);
    }
    for (const wchar_t* const none : {L"", static_cast<const wchar_t*>(nullptr)}) {
      CHECK(remove(none) == ERROR_ACCESS_DENIED);
      CHECK(RegistryDeleteKeyTree(HKEY_CURRENT_USER, none, key.Path()) == ERROR_ACCESS_DENIED);
    }
    CHECK(Exists(key, L"\\tree\\a\\b"));
    const test::ReplacedExport function("RegDeleteKeyExW", deleteKeyEx);
    CHECK(remove(L"tree") == 0);
    CHECK_FALSE(Exists(key, L"\\tree"));
    CHECK(Exists(key, L"\\kept"));
    CHECK(seenView == (deleteKeyEx != nullptr ? 0 : 1));
    seenView = 1;
    CHECK(remove(L"tree") == ERROR_FILE_NOT_FOUND);
    seenView = 1;
  }
}

}  // namespace kelvo
