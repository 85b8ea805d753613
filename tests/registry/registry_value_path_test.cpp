#include "lib/registry/registry_value_path.h"

#include "tests/support/testing.h"

TEST_CASE("ParseRegistryValuePath: splits a path into root, key path and value name") {
  const std::tuple<const wchar_t*, bool, HKEY, WString, WString> rows[] = {
      {L"HKEY_CURRENT_USER\\Software\\App\\x", true, HKEY_CURRENT_USER, L"Software\\App", L"x"},
      {L"HKEY_CLASSES_ROOT\\.x\\y", true, HKEY_CLASSES_ROOT, L".x", L"y"},
      {L"HKEY_LOCAL_MACHINE\\a\\\u017E", true, HKEY_LOCAL_MACHINE, L"a", L"\u017E"},
      {L"HKEY_USERS\\a\\", false, HKEY_USERS, L"a", L""},
      {L"HKEY_USERS\\\\b", false, HKEY_USERS, L"", L"b"},
      {L"HKEY_LOCAL_MACHINE\\Value", false, HKEY_LOCAL_MACHINE, L"was", L"was"},
      {L"HKEY_USERS", false, nullptr, L"was", L"was"},
      {L"hkey_local_machine\\X\\Y", false, nullptr, L"was", L"was"},
      {L"HKLM\\X\\Y", false, nullptr, L"was", L"was"},
      {nullptr, false, nullptr, L"was", L"was"}};
  for (const auto& [path, isWhole, expectedRoot, expectedPath, expectedName] : rows) {
    HKEY root = nullptr;
    WString keyPath = L"was";
    WString name = L"was";
    CHECK(ParseRegistryValuePath(path, root, keyPath, name) == isWhole);
    CHECK_BOTH(root == expectedRoot, keyPath == expectedPath);
    CHECK(name == expectedName);
  }
}
