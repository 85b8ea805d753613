#include "lib/sysinfo/computer_name.h"
#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/user_name.h"
#include "tests/support/testing.h"

static std::wstring told;

static UINT WINAPI TellDirectory(wchar_t* buffer, UINT size) {
  buffer[told.copy(buffer, size - 1)] = L'\0';
  return static_cast<UINT>(told.length()) + (told.length() < size ? 0 : 1);
}

static BOOL WINAPI TellName(int format, wchar_t* buffer, ULONG* size) {
  const ULONG room = std::exchange(*size, static_cast<ULONG>(told.length() + 1));
  SetLastError(ERROR_MORE_DATA);
  if (told.empty() || told.length() >= room) {
    return FALSE;
  }
  TellDirectory(buffer, room);
  *buffer = static_cast<wchar_t>(L'0' + format);
  return TRUE;
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

TEST_CASE("the plain name of account and computer stands in for a missing full one") {
  for (const std::size_t length : {0U, 99U, 255U, 1000U}) {
    const ReplacedExport user("GetUserNameExW", &TellName);
    const ReplacedExport computer("GetComputerNameExW", &TellName);
    told.assign(length, L'p');
    const WString rest(told.substr(0, length == 0 ? 0 : length - 1));
    CHECK(GetUserNameFQ() == (length == 0 ? GetAccountName() : WString(L"8") + rest));
    CHECK(GetComputerNameFQ() == (length == 0 ? GetComputerNetbiosName() : WString(L"3") + rest));
    CHECK(GetComputerDomain() == (length == 0 ? WString() : WString(L"2") + rest));
  }
  const ReplacedExport user("GetUserNameExW", nullptr);
  const ReplacedExport computer("GetComputerNameExW", nullptr);
  CHECK(GetUserNameFQ() == _wgetenv(L"USERNAME"));
  CHECK((GetComputerNameFQ() == GetComputerNetbiosName() && GetComputerDomain().empty()));
}
