#include "lib/sysinfo/system_report.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "lib/string/format_text.h"
#include "lib/sysinfo/administrators.h"
#include "lib/sysinfo/color_depth.h"
#include "lib/sysinfo/computer_name.h"
#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/system_version_string.h"
#include "lib/sysinfo/terminal_server.h"
#include "lib/sysinfo/user_name.h"
#include "lib/sysinfo/vista_elevation.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

struct Predicate {
  const wchar_t* name;
  bool (*ask)();
};

constexpr Predicate kPredicates[] = {
    {L"IsWin95()", IsWin95},
    {L"IsWin98()", IsWin98},
    {L"IsWinNT()", IsWinNT},
    {L"IsWin2000()", IsWin2000},
    {L"IsWinXP()", IsWinXP},
    {L"IsWinVista()", IsWinVista},
    {L"IsWin7()", IsWin7},
    {L"IsWin8()", IsWin8},
    {L"IsWinServer2003()", IsWinServer2003},
    {L"IsWinServer2008()", IsWinServer2008},
    {L"IsWinServer2012()", IsWinServer2012},
    {L"IsWin64Bit()", IsWin64Bit},
    {L"IsWinNTTerminalServer()", IsWinNTTerminalServer},
    {L"IsAdmin()", IsAdmin},
    {L"Is32BitOnWin64()", Is32BitOnWin64},
    {L"IsVistaProcessElevated()", IsVistaProcessElevated},
    {L"IsVistaProcessElevationTypeDefault()", IsVistaProcessElevationTypeDefault},
    {L"IsVistaProcessElevationTypeFull()", IsVistaProcessElevationTypeFull},
    {L"IsVistaProcessElevationTypeLimited()", IsVistaProcessElevationTypeLimited},
    {L"IsFullResolution()", [] { return IsFullResolution(); }},
    {L"IsLowResolution()", [] { return IsLowResolution(); }},
};

struct TextQuery {
  const wchar_t* name;
  WString (*ask)();
};

constexpr TextQuery kIdentityAndDirectories[] = {
    {L"GetComputerName()", GetComputerNetbiosName},
    {L"GetComputerNameFQ()", GetComputerNameFQ},
    {L"GetComputerDomain()", GetComputerDomain},
    {L"GetUserName()", GetAccountName},
    {L"GetUserNameFQ()", GetUserNameFQ},
    {L"GetSystemDirectory()", [] { return WString(GetSystemDirectoryPath()); }},
    {L"GetSystemWow64Directory()", GetSystemWow64DirectoryPath},
    {L"GetNativeSystemDirectory()", GetNativeSystemDirectoryPath},
};

struct ShellFolder {
  const wchar_t* name;
  int id;
};

constexpr ShellFolder kShellFolders[] = {
    {L"CSIDL_APPDATA", CSIDL_APPDATA},
    {L"CSIDL_COMMON_APPDATA", CSIDL_COMMON_APPDATA},
    {L"CSIDL_COMMON_DESKTOPDIRECTORY", CSIDL_COMMON_DESKTOPDIRECTORY},
    {L"CSIDL_COMMON_DOCUMENTS", CSIDL_COMMON_DOCUMENTS},
    {L"CSIDL_COMMON_PROGRAMS", CSIDL_COMMON_PROGRAMS},
    {L"CSIDL_COMMON_STARTMENU", CSIDL_COMMON_STARTMENU},
    {L"CSIDL_COMMON_STARTUP", CSIDL_COMMON_STARTUP},
    {L"CSIDL_DESKTOP", CSIDL_DESKTOP},
    {L"CSIDL_DESKTOPDIRECTORY", CSIDL_DESKTOPDIRECTORY},
    {L"CSIDL_LOCAL_APPDATA", CSIDL_LOCAL_APPDATA},
    {L"CSIDL_PERSONAL", CSIDL_PERSONAL},
    {L"CSIDL_PROGRAM_FILES", CSIDL_PROGRAM_FILES},
    {L"CSIDL_PROGRAM_FILES_COMMON", CSIDL_PROGRAM_FILES_COMMON},
    {L"CSIDL_PROGRAMS", CSIDL_PROGRAMS},
    {L"CSIDL_STARTMENU", CSIDL_STARTMENU},
    {L"CSIDL_SYSTEM", CSIDL_SYSTEM},
    {L"CSIDL_WINDOWS", CSIDL_WINDOWS},
};

WString ShellFolderText(const ShellFolder& folder) {
  std::array<wchar_t, MAX_PATH> path{};
  return SHGetSpecialFolderPathW(nullptr, path.data(), folder.id, FALSE) != FALSE
             ? WString(path.data())
             : WString(L"failed to query ") + folder.name;
}

void AppendEnvironment(HKEY root, const wchar_t* subkey, const WString& prefix,
                       NameTextList& report) {
  for (const auto& [name, text] : ReadRegistryKeyValues(root, subkey)) {
    report.emplace_back(prefix + name, text);
  }
}

}  // namespace

void CollectSystemReport(NameTextList& report) {
  report.clear();
  report.emplace_back(L"GetSystemVersionString()", GetSystemVersionString());
  for (const Predicate& predicate : kPredicates) {
    report.emplace_back(predicate.name, FormatText(L"%i", predicate.ask() ? 1 : 0));
  }
  for (const TextQuery& query : kIdentityAndDirectories) {
    report.emplace_back(query.name, query.ask());
  }
  for (const ShellFolder& folder : kShellFolders) {
    report.emplace_back(folder.name, ShellFolderText(folder));
  }
  AppendEnvironment(HKEY_CURRENT_USER, L"Environment", L"UserEnv: ", report);
  AppendEnvironment(HKEY_LOCAL_MACHINE,
                    L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment",
                    L"SystemEnv: ", report);
}

}  // namespace kelvo
