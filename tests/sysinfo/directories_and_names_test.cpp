#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/user_name.h"

static std::wstring told;

static UINT WINAPI TellDirectory(wchar_t* buffer, UINT size) {
  buffer[told.copy(buffer, size - 1)] = L'\0';
  return static_cast<UINT>(told.length()) + (told.length() < size ? 0 : 1);
}

static BOOLEAN WINAPI TellName(int format, wchar_t* buffer, ULONG* size) {
  const ULONG room = std::exchange(*size, static_cast<ULONG>(told.length() + 1));
  SetLastError(ERROR_MORE_DATA);
  return format == 8 && TellDirectory(buffer, room) < room && !told.empty();
}

TEST_CASE("directories end in one backslash and fit their buffers") {
  REPLACE(GetSystemDirectoryW, [](auto, auto... to) { return TellDirectory(to...); });
  const auto x = [](std::size_t count) { return WString(count, L'x'); };
  using Row = std::tuple<WString, WString, WString>;
  const auto rows = std::to_array({Row(L"C:\\\u017E", L"C:\\\u017E\\", L"C:\\\u017E\\"),
                                   Row(L"C:/x/", L"C:/x/", L"C:/x/"), Row(L"", L"", L""),
                                   Row(x(510), x(510) + L"\\", x(510) + L"\\"),
                                   Row(x(1023), L"", x(1023) + L"\\"), Row(x(1024), L"", L"")});
  for (const auto& [directory, systemPath, wow64Path] : rows) {
    told = directory.c_str();
    const ReplacedExport wow64("GetSystemWow64DirectoryW", &TellDirectory);
    CHECK(GetSystemWow64DirectoryPath() == wow64Path);
    CHECK((GetSystemDirectoryPath() == systemPath && GetNativeSystemDirectoryPath() == systemPath));
  }
  const ReplacedExport missing("GetSystemWow64DirectoryW", nullptr);
  CHECK(GetSystemWow64DirectoryPath().empty());
}

TEST_CASE("the account's name stands in for a missing principal name") {
  for (const std::size_t length : {0U, 255U, 1000U}) {
    const ReplacedExport principal("GetUserNameExW", &TellName);
    told.assign(length, L'p');
    CHECK(GetUserNameFQ() == (length == 0 ? GetAccountName() : WString(told)));
  }
  const ReplacedExport missing("GetUserNameExW", nullptr);
  CHECK(GetUserNameFQ() == _wgetenv(L"USERNAME"));
}
