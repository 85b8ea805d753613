#include "lib/sysinfo/internal/nt_name.h"

#include <iterator>

#include "lib/platform/guarded_call.h"
#include "lib/platform/module.h"
#include "lib/string/format_text.h"
#include "lib/sysinfo/internal/product_edition.h"

namespace kelvo::internal {

namespace {

struct SuiteText {
  DWORD suite;
  const wchar_t* text;
};

bool HasSuite(const OSVERSIONINFOEXW& version, DWORD suite) {
  return (version.wSuiteMask & suite) != 0;
}

void AppendArchitecture(WORD architecture, WString& text) {
  switch (architecture) {
    case PROCESSOR_ARCHITECTURE_AMD64:
      text += L"x64 ";
      break;
    case PROCESSOR_ARCHITECTURE_INTEL:
      text += L"x86 ";
      break;
    default:
      text += FormatText(L"Architecture %04x ", architecture);
  }
}

void AppendServerMode(const OSVERSIONINFOEXW& version, WString& text) {
  if (HasSuite(version, VER_SUITE_TERMINAL) && !HasSuite(version, VER_SUITE_SINGLEUSERTS)) {
    text += L"(Application Server Mode) ";
  }
}

// Handles NT 6.x: Windows Vista to 8.1, and the server releases with the same version numbers.
void AppendNt6Name(const OSVERSIONINFOEXW& version, WORD architecture, WString& text) {
  static constexpr const wchar_t* kWorkstations[] = {L"Windows Vista ", L"Windows 7 ",
                                                     L"Windows 8 ", L"Windows 8.1 "};
  static constexpr const wchar_t* kServers[] = {L"Windows Server 2008 ", L"Windows Server 2008 R2 ",
                                                L"Windows Server 2012 ",
                                                L"Windows Server 2012 R2 "};
  const auto& names = version.wProductType == VER_NT_WORKSTATION ? kWorkstations : kServers;
  if (version.dwMinorVersion < std::size(names)) {
    text += names[version.dwMinorVersion];
  }
  if (HasSuite(version, VER_SUITE_PERSONAL)) {
    text += L"Home ";
  }
  auto* const getProductInfo =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), GetProductInfo);
  if (getProductInfo != nullptr) {
    DWORD type = PRODUCT_UNDEFINED;
    getProductInfo(version.dwMajorVersion, version.dwMinorVersion, 0, 0, &type);
    text += ProductEditionText(type);
    text += L" ";
    AppendServerMode(version, text);
  }
  AppendArchitecture(architecture, text);
}

// A 64-bit Windows XP with the version number 5.2, such as Windows XP Professional x64 Edition,
// also gets one of these names of Windows Server 2003.
const wchar_t* Server2003Name(const OSVERSIONINFOEXW& version) {
  if (GetSystemMetrics(SM_SERVERR2) != 0) {
    return L"Microsoft Windows Server 2003 R2 ";
  }
  static constexpr SuiteText kNames[] = {
      {VER_SUITE_BLADE, L"Windows Server 2003 Web "},
      {VER_SUITE_COMPUTE_SERVER, L"Windows Server 2003 Compute Cluster "},
      {VER_SUITE_WH_SERVER, L"Windows Home Server"},
  };
  for (const auto& [suite, name] : kNames) {
    if (HasSuite(version, suite)) {
      return name;
    }
  }
  return L"Microsoft Windows Server 2003 ";
}

void AppendServer2003Name(const OSVERSIONINFOEXW& version, WORD architecture, WString& text) {
  text += Server2003Name(version);
  static constexpr SuiteText kSuites[] = {
      {VER_SUITE_DATACENTER, L"Datacenter "},
      {VER_SUITE_ENTERPRISE, L"Enterprise "},
      {VER_SUITE_STORAGE_SERVER, L"Storage "},
      {VER_SUITE_BACKOFFICE, L"+BackOffice "},
  };
  for (const auto& [suite, name] : kSuites) {
    if (HasSuite(version, suite)) {
      text += name;
    }
  }
  AppendArchitecture(architecture, text);
  AppendServerMode(version, text);
}

const wchar_t* XpName(const OSVERSIONINFOEXW& version) {
  if (GetSystemMetrics(SM_STARTER) != 0) {
    return L"Windows XP Starter ";
  }
  // The Tablet PC edition gets the Media Center edition's name.
  if (GetSystemMetrics(SM_MEDIACENTER) != 0 || GetSystemMetrics(SM_TABLETPC) != 0) {
    return L"Windows XP Media Center ";
  }
  if (HasSuite(version, VER_SUITE_PERSONAL)) {
    return L"Windows XP Home ";
  }
  return HasSuite(version, VER_SUITE_EMBEDDEDNT) ? L"Windows XP Embedded"
                                                 : L"Microsoft Windows XP ";
}

void AppendNt5Name(const OSVERSIONINFOEXW& version, WORD architecture, WString& text) {
  switch (version.dwMinorVersion) {
    case 0:
      text += L"Microsoft Windows 2000 ";
      break;
    case 1:
      if (!GuardedCall([&] { text += XpName(version); })) {
        text += L"catched(GetSystemMetrics) Microsoft Windows XP ";
      }
      break;
    case 2:
      if (!GuardedCall([&] { AppendServer2003Name(version, architecture, text); })) {
        text += L"catched(GetSystemMetrics) Windows Server 2003";
      }
      break;
    default:
      break;
  }
}

}  // namespace

void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text) {
  const DWORD major = version.dwMajorVersion;
  if (major == 6) {
    AppendNt6Name(version, architecture, text);
  } else if (major == 5) {
    AppendNt5Name(version, architecture, text);
  } else if (major < 5) {
    text += L"Microsoft Windows NT ";
  }
}

}  // namespace kelvo::internal
