#include "lib/registry/registry_value_path.h"

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("a full value path is split into root, key path and value name") {
  struct Row {
    const wchar_t* path;
    HKEY root;
    const wchar_t *keyPath, *valueName;
  };
  const Row rows[] = {
      {L"HKEY_CURRENT_USER\\Software\\App\\x", HKEY_CURRENT_USER, L"Software\\App", L"x"},
      {L"HKEY_CLASSES_ROOT\\.x\\y", HKEY_CLASSES_ROOT, L".x", L"y"},
      {L"HKEY_LOCAL_MACHINE\\a\\\u017E", HKEY_LOCAL_MACHINE, L"a", L"\u017E"},
      {L"HKEY_USERS\\a\\", HKEY_USERS, L"a", L""},
      {L"HKEY_USERS\\\\b", HKEY_USERS, L"", L"b"},
      {L"HKEY_LOCAL_MACHINE\\Value", HKEY_LOCAL_MACHINE, L"was", L"was"},
      {L"HKEY_USERS", nullptr, L"was", L"was"},
      {L"hkey_local_machine\\Software\\X\\Y", nullptr, L"was", L"was"},
      {L"HKLM\\Software\\X\\Y", nullptr, L"was", L"was"},
      {nullptr, nullptr, L"was", L"was"},
  };
  for (const Row& row : rows) {
    HKEY root = nullptr;
    WString keyPath = L"was";
    WString valueName = L"was";
    CHECK(ParseRegistryValuePath(row.path, root, keyPath, valueName) == (&row - &rows[0] < 3));
    CHECK(root == row.root);
    CHECK(keyPath == row.keyPath);
    CHECK(valueName == row.valueName);
  }
}

}  // namespace kelvo
