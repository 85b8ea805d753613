#include "lib/registry/registry_value_path.h"

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("a full value path is split into root, key path and value name") {
  const HKEY untouched = nullptr;
  struct Row {
    const wchar_t* path;
    bool answer;
    HKEY root;
    const wchar_t* keyPath;
    const wchar_t* valueName;
  };
  const Row rows[] = {
      {L"HKEY_CURRENT_USER\\Software\\App\\Setting", true, HKEY_CURRENT_USER, L"Software\\App",
       L"Setting"},
      {L"HKEY_CLASSES_ROOT\\.x\\y", true, HKEY_CLASSES_ROOT, L".x", L"y"},
      {L"HKEY_LOCAL_MACHINE\\a\\\u017E", true, HKEY_LOCAL_MACHINE, L"a", L"\u017E"},
      {L"HKEY_USERS\\a\\\\b", true, HKEY_USERS, L"a\\", L"b"},
      {L"HKEY_USERS\\a\\", false, HKEY_USERS, L"a", L""},
      {L"HKEY_USERS\\\\b", false, HKEY_USERS, L"", L"b"},
      {L"HKEY_LOCAL_MACHINE\\Value", false, HKEY_LOCAL_MACHINE, L"was", L"was"},
      {L"HKEY_USERS\\", false, HKEY_USERS, L"was", L"was"},
      {L"HKEY_USERS", false, untouched, L"was", L"was"},
      {L"HKEY_CURRENT_CONFIG\\a\\b", false, untouched, L"was", L"was"},
      {L"hkey_local_machine\\Software\\X\\Y", false, untouched, L"was", L"was"},
      {L"HKLM\\Software\\X\\Y", false, untouched, L"was", L"was"},
      {nullptr, false, untouched, L"was", L"was"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.path == nullptr ? L"null" : row.path);
    HKEY root = untouched;
    WString keyPath = L"was";
    WString valueName = L"was";
    CHECK(ParseRegistryValuePath(row.path, root, keyPath, valueName) == row.answer);
    CHECK(root == row.root);
    CHECK(keyPath == row.keyPath);
    CHECK(valueName == row.valueName);
  }
}

TEST_CASE("a full value path may be the text that receives a part of it") {
  WString path = L"HKEY_USERS\\key\\value";
  HKEY root = nullptr;
  WString name;
  CHECK(ParseRegistryValuePath(path, root, path, name));
  CHECK(path == L"key");
  CHECK(name == L"value");
}

}  // namespace kelvo
