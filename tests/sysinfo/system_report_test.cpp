#include "lib/sysinfo/system_report.h"

#include <shlobj.h>

#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/sysinfo/color_depth.h"
#include "tests/support/testing.h"

TEST_CASE("a colour depth is low up to 16 bits and full from 32") {
  const int rows[][4] = {{1, 16, 1, 0}, {1, 17, 0, 0}, {1, 24, 0, 0},
                         {1, 31, 0, 0}, {1, 32, 0, 1}, {4, 8, 0, 1}};
  for (const auto& [planes, bits, low, full] : rows) {
    REPLACE(GetDeviceCaps, [&](auto, auto, int index) {
      return index == PLANES ? planes : index == BITSPIXEL ? bits : 0;
    });
    CHECK((IsLowResolution() == (low != 0) && IsFullResolution() == (full != 0)));
  }
  REPLACE(GetDC, [](auto...) { return nullptr; });
  CHECK_FALSE((IsLowResolution() || IsFullResolution()));
}

TEST_CASE("the report has all its entries once and in order") {
  REPLACE(SHGetSpecialFolderPathW, [](auto original, auto... given) {
    return std::get<2>(std::tuple(given...)) == CSIDL_STARTMENU ? FALSE : original(given...);
  });
  const StandInKey user(HKEY_CURRENT_USER);
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  const wchar_t* const system = L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment";
  RegistryWriteString(HKEY_CURRENT_USER, L"Environment", L"MINE", L"mine");
  RegistryWriteString(HKEY_LOCAL_MACHINE, system, L"OURS", L"everybody's");
  NameTextList report;
  for (int time = 0; time < 2; ++time) {
    CollectSystemReport(report);
    std::wstring seen;
    for (const auto& [name, text] : report) {
      seen += name.c_str() + std::wstring(L"\n");
    }
    CheckAgainstFile(seen, L"report_names.txt");
  }
  CHECK(report[44].second == L"failed to query CSIDL_STARTMENU");
  CHECK(report[48].second == L"everybody's");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Environment");
  CollectSystemReport(report);
  CHECK((report.size() == 48 && report.back().first == L"SystemEnv: OURS"));
}

TEST_CASE("the report's program prints columns that no value can break") {
  const wchar_t* const name = L"kelvo \u017E\U0001F600";
  RegistryWriteString(HKEY_CURRENT_USER, L"Environment", name, L"\x1B[31m\n\u202E\xD800.");
  const ChildResult result = RunChild(ProgramPath(L"system_report.exe"));
  RegistryDeleteValue(HKEY_CURRENT_USER, L"Environment", name);
  const auto shows = [&](std::string entry, const std::string& value) {
    entry.resize(std::max(entry.length(), std::size_t{38}), ' ');
    return result.output.find("\n" + entry + value + "\r\n") != std::string::npos;
  };
  char own[MAX_PATH];
  DWORD size = MAX_PATH;
  CHECK((GetComputerNameA(own, &size) && shows("GetComputerName()", own)));
  CHECK((GetSystemDirectoryA(own, MAX_PATH) &&
         shows("GetSystemDirectory()", own + std::string("\\"))));
  CHECK((result.exitCode == 0 && shows("IsWinNT()", "1")));
  CHECK(shows("UserEnv: kelvo \xC5\xBE\xF0\x9F\x98\x80" + std::string(21, ' '),
              "<U+001B>[31m<U+000A><U+202E><U+D800>."));
}
