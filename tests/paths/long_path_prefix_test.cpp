#include "lib/paths/long_path_prefix.h"

#include "tests/support/testing.h"

TEST_CASE("AddLongPathPrefix, RemoveLongPathPrefix: convert some paths, return others unchanged") {
  const wchar_t* const rows[][3] = {
      {nullptr, L"", L""},
      {L"Z:\\x", L"\\\\?\\Z:\\x", L"Z:\\x"},
      {L"a:/x/./y/..\\z", L"\\\\?\\a:\\x\\z", L"a:/x/./y/..\\z"},
      {L"\\\\server\\share\\x", L"\\\\?\\UNC\\server\\share\\x", L"\\\\server\\share\\x"},
      {L"//server/share/x", L"\\\\?\\UNC\\server\\share\\x", L"//server/share/x"},
      {L"C:x", L"C:x", L"C:x"},
      {L"\\x", L"\\x", L"\\x"},
      {L"C:\\NUL", L"C:\\NUL", L"C:\\NUL"},
      {L"1:\\x", L"1:\\x", L"1:\\x"},
      {L"\\\\?\\C:\\x\\..", L"\\\\?\\C:\\x\\..", L"C:\\x\\.."},
      {L"\\\\?\\C:", L"\\\\?\\C:", L"\\\\?\\C:"},
      {L"\\\\?\\C:/x", L"\\\\?\\C:/x", L"\\\\?\\C:/x"},
      {L"\\\\.\\COM1", L"\\\\.\\COM1", L"\\\\.\\COM1"},
      {L"\\??\\C:\\x", L"\\??\\C:\\x", L"\\??\\C:\\x"},
      {L"\\\\?\\unc\\server\\share", L"\\\\?\\unc\\server\\share", L"\\\\server\\share"},
      {L"\\\\?\\UNC\\", L"\\\\?\\UNC\\", L"\\\\?\\UNC\\"},
      {L"\\\\?\\UNC\\.\\pipe\\x", L"\\\\?\\UNC\\.\\pipe\\x", L"\\\\?\\UNC\\.\\pipe\\x"},
      {L"\\\\\\x", L"\\\\\\x", L"\\\\\\x"},
      {L"\\\\?\\Volume{1}\\x", L"\\\\?\\Volume{1}\\x", L"\\\\?\\Volume{1}\\x"}};
  for (const auto& [path, added, removed] : rows) {
    CAPTURE(added);
    CHECK(AddLongPathPrefix(path) == added);
    CHECK(RemoveLongPathPrefix(path) == removed);
    CHECK(HasLongPathPrefix(path) ==
          (path != nullptr && std::wstring_view(path).starts_with(L"\\\\?\\")));
  }
  for (const std::size_t length : {32'763U, 32'764U}) {
    const std::wstring path = L"C:\\" + std::wstring(length - 3, L'x');
    CHECK(AddLongPathPrefix(path.c_str()).length() == (length < 32'764 ? length + 4 : length));
  }
  REPLACE(GetFullPathNameW, [](auto...) { return DWORD{0}; });
  CHECK(AddLongPathPrefix(L"C:\\x") == L"C:\\x");
}
