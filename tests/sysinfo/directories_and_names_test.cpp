#include "lib/platform/module.h"
#include "lib/sysinfo/computer_name.h"
#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/user_name.h"
#include "tests/support/testing.h"

static std::wstring simulatedText;

static UINT WINAPI GiveDirectory(wchar_t* buffer, UINT size) {
  buffer[simulatedText.copy(buffer, size - 1)] = L'\0';
  return static_cast<UINT>(simulatedText.length()) + (simulatedText.length() < size ? 0 : 1);
}

// Stores simulatedText, but replaces its first character with the digit of `format`. Reports size 2
// for ComputerNameDnsHostname, to catch code that queries this size but reads another format.
static BOOL WINAPI GiveName(int format, wchar_t* buffer, ULONG* size) {
  const std::size_t length = format == ComputerNameDnsHostname ? 1 : simulatedText.length();
  const ULONG room = std::exchange(*size, static_cast<ULONG>(length + 1));
  SetLastError(ERROR_MORE_DATA);
  if (simulatedText.empty() || simulatedText.length() >= room) {
    return FALSE;
  }
  GiveDirectory(buffer, room);
  *buffer = static_cast<wchar_t>(L'0' + format);
  return TRUE;
}

static WString x(std::size_t count) { return {count, L'x'}; }

TEST_CASE("GetSystemDirectoryPath, GetSystemWow64DirectoryPath: add a missing final separator") {
  REPLACE(GetSystemDirectoryW, [](auto, auto... to) { return GiveDirectory(to...); });
  const WString rows[][3] = {{L"C:\\\u017E", L"C:\\\u017E\\", L"C:\\\u017E\\"},
                             {L"C:/x/", L"C:/x/", L"C:/x/"},
                             {L"", L"", L""},
                             {x(510), x(510) + L"\\", x(510) + L"\\"},
                             {x(511), L"", x(511) + L"\\"},
                             {x(1023), L"", x(1023) + L"\\"},
                             {x(1024), L"", L""}};
  for (const auto& [directory, systemPath, wow64Path] : rows) {
    simulatedText = directory.c_str();
    const ReplacedExport wow64("GetSystemWow64DirectoryW", &GiveDirectory);
    CHECK(GetSystemWow64DirectoryPath() == wow64Path);
    CHECK(GetSystemDirectoryPath() == systemPath);
    CHECK(GetNativeSystemDirectoryPath() == systemPath);
  }
  const ReplacedExport missing("GetSystemWow64DirectoryW", nullptr);
  CHECK(GetSystemWow64DirectoryPath().empty());
}

TEST_CASE("GetUserNameFQ, GetComputerNameFQ: fall back on the account name or NetBIOS name") {
  // Keeps secur32.dll loaded, because Wine takes a long time to load it again for each call.
  const OwnedModule kept(LoadLibraryW(L"secur32.dll"));
  const auto give = [](auto, wchar_t* name, DWORD* size) {
    return GiveDirectory(name, *size) < *size ? TRUE : FALSE;
  };
  REPLACE(GetUserNameW, give);
  REPLACE(GetComputerNameW, give);
  for (const std::size_t length : {1U, 15U, 16U, 100U, 101U, 255U, 256U, 257U, 1000U}) {
    simulatedText.assign(length, L'x');
    CHECK(GetAccountName() == x(length > 256 ? 0 : length));
    {
      const ReplacedExport user("GetUserNameExW", &GiveName);
      const ReplacedExport computer("GetComputerNameExW", &GiveName);
      CHECK(GetUserNameInFormat(NameSamCompatible) == L"2" + x(length - 1));
      CHECK(GetUserNameInFormat(NameUnknown).empty());
      CHECK(GetUserNameFQ() == L"8" + x(length - 1));
      CHECK(GetComputerNameFQ() == L"3" + x(length - 1));
      CHECK(GetComputerDomain() == L"2" + x(length - 1));
    }
    const ReplacedExport user("GetUserNameExW", nullptr);
    const ReplacedExport computer("GetComputerNameExW", nullptr);
    CHECK(GetUserNameFQ() == x(length > 100 ? 0 : length));
    CHECK(GetComputerNameFQ() == x(length > 15 ? 0 : length));
    CHECK(GetComputerDomain().empty());
  }
}
