#include "lib/registry/registry_key.h"
#include "lib/registry/registry_key_tree.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_value_list.h"
#include "lib/registry/registry_write_access.h"
#include "tests/support/testing.h"

HKEY const kRoot = HKEY_CURRENT_USER;

TEST_CASE("each operation asks for its rights and the view, and closes what it opened") {
  using Operation = void (*)(const wchar_t* path);
  const std::pair<Operation, std::vector<REGSAM>> rows[] = {
      {[](auto* path) { RegistryReadString(kRoot, path, L"n", L""); }, {0x20119}},
      {[](auto* path) { RegistryValueExists(kRoot, path, L"n"); }, {0x20119}},
      {[](auto* path) { ReadRegistryKeyValues(kRoot, path); }, {0x20119}},
      {[](auto* path) { RegistryWriteDword(kRoot, path, L"n", 1); }, {0x20106}},
      {[](auto* path) { RegistryDeleteValue(kRoot, path, L"n"); }, {0x102}},
      {[](auto* path) { RegistryDeleteKeyTree(kRoot, path, L"sub"); },
       {0x2010E, 0x2010F, 0x2010F, 0x2010E}}};
  for (const auto& [run, rights] : rows) {
    const ScratchKey key;
    REQUIRE(RegistryWriteDword(kRoot, (key + L"\\sub").c_str(), L"n", 1) == 0);
    REQUIRE(RegistryWriteDword(kRoot, key.c_str(), L"n", 1) == 0);
    std::vector<REGSAM> asked;
    std::ptrdiff_t closed = 0;
    REPLACE(RegOpenKeyExW, [&](auto original, auto... given) {
      asked.push_back(std::get<3>(std::tuple(given...)));
      return original(given...);
    });
    REPLACE(RegCreateKeyExW, [&](auto original, auto root, auto path, auto reserved, LPWSTR kind,
                                 DWORD options, REGSAM access, auto... rest) {
      CHECK((options == REG_OPTION_NON_VOLATILE && *kind == L'\0'));
      asked.push_back(access);
      return original(root, path, reserved, kind, options, access, rest...);
    });
    REPLACE(RegCloseKey, [&](auto original, HKEY open) { return ++closed, original(open); });
    RegistryAccessFlags = KEY_WOW64_64KEY;
    run(key.c_str());
    RegistryAccessFlags = 0;
    CHECK((asked == rights && closed == std::ssize(rights)));
  }
}

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
      return *static_cast<DWORD*>(elevation) = elevated, TRUE;
    });
    REPLACE(RegSetValueExW, [&](auto original, auto... arguments) {
      ++tried;
      return isWritable != 0 ? original(arguments...) : ERROR_ACCESS_DENIED;
    });
    CHECK((RegistryCanWrite(kRoot, key.c_str()) == static_cast<int>(answer) && tried == tries));
    CHECK_FALSE(RegistryValueExists(kRoot, key.c_str(), L"RegCheck"));
  }
}

TEST_CASE("a key goes with everything below it, with and without RegDeleteKeyExW") {
  static REGSAM seenView;
  const auto deleteKeyEx = +[](HKEY key, LPCWSTR name, REGSAM view, DWORD) {
    return seenView = view, RegDeleteKeyW(key, name);
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
    CHECK((remove(L"") == ERROR_ACCESS_DENIED && remove(nullptr) == ERROR_ACCESS_DENIED));
    CHECK(RegistryDeleteKeyTree(kRoot, L"", key.c_str()) == ERROR_ACCESS_DENIED);
    CHECK(exists(L"\\tree\\a\\b"));
    const ReplacedExport replaced("RegDeleteKeyExW", function);
    seenView = 1;
    CHECK((remove(L"tree") == 0 && remove(L"tree") == ERROR_FILE_NOT_FOUND));
    CHECK((!exists(L"\\tree") && exists(L"\\kept") && seenView == (function == nullptr)));
  }
}

TEST_CASE("a tree of any depth is deleted without a stack for it") {
  const ScratchKey key;
  OwnedRegistryKey deepest;
  REQUIRE(CreateRegistryKey(kRoot, (key + L"\\tree").c_str(), deepest) == 0);
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
