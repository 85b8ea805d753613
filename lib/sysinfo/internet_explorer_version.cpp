#include "lib/sysinfo/internet_explorer_version.h"

#include <windows.h>

#include <array>
#include <cwchar>

#include "lib/string/wstring.h"
#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/system_directories.h"

namespace kelvo {

namespace {

struct BrowserRelease {
  const wchar_t* version;
  const wchar_t* name;
};

// The names keep the vendor's spelling, including stray spaces.
constexpr BrowserRelease kBrowserReleases[] = {
    {L"4.70.1155.0", L"Internet Explorer 3.0"},
    {L"4.70.1158.0", L"Internet Explorer 3.0 (OSR2)"},
    {L"4.70.1215.0", L"Internet Explorer 3.01"},
    {L"4.70.1300.0", L"Internet Explorer 3.02 and 3.02a"},
    {L"4.71.1008.3", L"Internet Explorer 4.0 PP2"},
    {L"4.71.1712.5", L"Internet Explorer 4.0"},
    {L"4.72.2106.7", L"Internet Explorer 4.01"},
    {L"4.72.3110.3", L"Internet Explorer 4.01 Service Pack 1"},
    {L"4.72.3612.1707", L"Internet Explorer 4.01 SP2"},
    {L"4.72.3711.2900",
     L"Internet Explorer 4.x with Update for Server-side Page Reference Redirect Issue installed."},
    {L"5.0.518.5", L"Internet Explorer 5 Developer Preview (Beta 1)"},
    {L"5.0.910.1308", L"Internet Explorer 5 Beta (Beta 2)"},
    {L"5.0.2014.21", L"Internet Explorer 5"},
    {L"5.0.2314.1000", L"Internet Explorer 5 (Office 2000)"},
    {L"5.0.2516.1900", L"Internet Explorer 5.01 (Windows 2000 Beta 3, build 5.00.2031)"},
    {L"5.0.2614.3500", L"Internet Explorer 5 (Windows 98 Second Edition)"},
    {L"5.0.2717.2000",
     L"Internet Explorer 5 with Update for Malformed Favorites Icon Security Issue installed"},
    {L"5.0.2721.1400",
     L"Internet Explorer 5 with Update for ImportExport Favorites() Security Issue installed"},
    {L"5.0.2723.2900",
     L"Internet Explorer 5.0 with Update for Server-side Page Reference Redirect Issue installed."},
    {L"5.0.2919.800", L"Internet Explorer 5.01 (Windows 2000 RC1, build 5.00.2072)"},
    {L"5.0.2919.3800", L"Internet Explorer 5.01 (Windows 2000 RC2, build 5.00.2128)"},
    {L"5.0.2919.6307", L"Internet Explorer 5.01"},
    {L"5.0.2919.6400",
     L"Internet Explorer 5.01 with Update for Server-side Page Reference Redirect Issue "
     L"installed."},
    {L"5.0.2920.0", L"Internet Explorer 5.01 (Windows 2000, build 5.00.2195)"},
    {L"5.0.3103.1000", L"Internet Explorer 5.01 SP1 (Windows 2000)"},
    {L"5.0.3105.106", L"Internet Explorer 5.01 SP1 (Windows 95/98 and  Windows NT 4.0) "},
    {L"5.50.3825.1300", L"Internet Explorer 5.5 Developer Preview (Beta)"},
    {L"5.50.4030.2400", L"Internet Explorer 5.5 & Internet Tools Beta"},
    {L"5.50.4134.600", L"Internet Explorer 5.5"},
};

std::array<wchar_t, 256> releaseName{};

}  // namespace

bool IsIEVersionAtLeast(const void* /*ignored*/, const int (&version)[4]) {
  const WString path = WString(GetSystemDirectoryPath()) + L"Shdocvw.dll";
  const auto& [major, minor, build, revision] = version;
  const int order = CompareFileVersion(path.c_str(), major, minor, build, revision);
  return order == 0 || order == 1;
}

const wchar_t* GetIEVersionName(const void* /*ignored*/, const int (&version)[4]) {
  std::array<wchar_t, 64> text{};
  wsprintfW(text.data(), L"%d.%d.%d.%d", version[0], version[1], version[2], version[3]);
  for (const BrowserRelease& release : kBrowserReleases) {
    if (std::wcscmp(release.version, text.data()) == 0) {
      lstrcpynW(releaseName.data(), release.name, static_cast<int>(releaseName.size()));
      break;
    }
  }
  return releaseName.data();
}

}  // namespace kelvo
