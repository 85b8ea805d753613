#include "lib/sysinfo/computer_name.h"
#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/user_name.h"
#include "tests/support/testing.h"

static std::wstring told;

static UINT WINAPI TellDirectory(wchar_t* buffer, UINT size) {
  buffer[told.copy(buffer, size - 1)] = L'\0';
  return static_cast<UINT>(told.length()) + (told.length() < size ? 0 : 1);
}

// The first character says which format was asked for.
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

static WString x(std::size_t count) { return {count, L'x'}; }

TEST_CASE("directories end in one separator and fit their buffers") {
  REPLACE(GetSystemDirectoryW, [](auto, auto... to) { return TellDirectory(to...); });
  struct Row {
    WString directory, systemPath, wow64Path;
  };
  const Row rows[] = {{L"C:\\\u017E", L"C:\\\u017E\\", L"C:\\\u017E\\"},
                      {L"C:/x/", L"C:/x/", L"C:/x/"},
                      {L"", L"", L""},
                      {x(510), x(510) + L"\\", x(510) + L"\\"},
                      {x(511), L"", x(511) + L"\\"},
                      {x(1023), L"", x(1023) + L"\\"},
                      {x(1024), L"", L""}};
  for (const auto& [directory, systemPath, wow64Path] : rows) {
    told = directory.c_str();
    const ReplacedExport wow64("GetSystemWow64DirectoryW", &TellDirectory);
    CHECK(GetSystemWow64DirectoryPath() == wow64Path);
    CHECK(GetSystemDirectoryPath() == systemPath);
    CHECK(GetNativeSystemDirectoryPath() == systemPath);
  }
  const ReplacedExport missing("GetSystemWow64DirectoryW", nullptr);
  CHECK(GetSystemWow64DirectoryPath().empty());
}

TEST_CASE("names of any length are read in the format asked for") {
  const ReplacedExport user("GetUserNameExW", &TellName);
  const ReplacedExport computer("GetComputerNameExW", &TellName);
  for (const std::size_t length : {1U, 99U, 100U, 255U, 256U, 1000U}) {
    told.assign(length, L'x');
    CHECK(GetUserNameInFormat(NameUnknown).empty());
    CHECK(GetUserNameInFormat(NameSamCompatible) == L"2" + x(length - 1));
    CHECK(GetUserNameFQ() == L"8" + x(length - 1));
    CHECK(GetComputerNameFQ() == L"3" + x(length - 1));
    CHECK(GetComputerDomain() == L"2" + x(length - 1));
  }
}

TEST_CASE("the plain name of account and computer stands in for a missing full one") {
  const auto tell = [](auto, wchar_t* name, DWORD* size) {
    return TellDirectory(name, *size) < *size ? TRUE : FALSE;
  };
  REPLACE(GetUserNameW, tell);
  REPLACE(GetComputerNameW, tell);
  const auto fail = +[](int, wchar_t*, ULONG*) -> BOOL { return FALSE; };
  for (const auto function : {fail, decltype(fail)(nullptr)}) {
    const ReplacedExport user("GetUserNameExW", function);
    const ReplacedExport computer("GetComputerNameExW", function);
    for (const std::size_t length : {15U, 16U, 100U, 101U, 256U, 257U}) {
      told.assign(length, L'x');
      CHECK(GetAccountName() == x(length > 256 ? 0 : length));
      CHECK(GetUserNameFQ() == x(length > 100 ? 0 : length));
      CHECK(GetComputerNetbiosName() == x(length > 15 ? 0 : length));
      CHECK(GetComputerNameFQ() == x(length > 15 ? 0 : length));
      CHECK(GetComputerDomain().empty());
    }
  }
}
