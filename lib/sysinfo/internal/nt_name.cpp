#include "lib/sysinfo/internal/nt_name.h"

#include <iterator>

#include "lib/platform/internal/guarded_call.h"
#include "lib/string/format_text.h"
#include "lib/sysinfo/internal/product_edition.h"

namespace kelvo::internal {

namespace {

struct SuiteText {
  DWORD suite;
  const wchar_t* text;
};

bool HasSuite(const SystemFacts& facts, DWORD suite) {
  return (facts.version.wSuiteMask & suite) != 0;
}

void AppendArchitecture(const SystemFacts& facts, WString& text) {
  switch (facts.architecture) {
    case PROCESSOR_ARCHITECTURE_AMD64:
      text += L"x64 ";
      break;
    case PROCESSOR_ARCHITECTURE_INTEL:
      text += L"x86 ";
      break;
    default:
      text += FormatText(L"Architecture %04x ", facts.architecture);
  }
}

void AppendServerMode(const SystemFacts& facts, WString& text) {
  if (HasSuite(facts, VER_SUITE_TERMINAL) && !HasSuite(facts, VER_SUITE_SINGLEUSERTS)) {
    text += L"(Application Server Mode) ";
  }
}

// Windows Vista to 8.1 and their servers.
void AppendNt6Name(const SystemFacts& facts, WString& text) {
  static constexpr const wchar_t* kWorkstations[] = {L"Windows Vista ", L"Windows 7 ",
                                                     L"Windows 8 ", L"Windows 8.1 "};
  static constexpr const wchar_t* kServers[] = {L"Windows Server 2008 ", L"Windows Server 2008 R2 ",
                                                L"Windows Server 2012 ",
                                                L"Windows Server 2012 R2 "};
  const auto& names = facts.version.wProductType == VER_NT_WORKSTATION ? kWorkstations : kServers;
  if (facts.version.dwMinorVersion < std::size(names)) {
    text += names[facts.version.dwMinorVersion];
  }
  if (HasSuite(facts, VER_SUITE_PERSONAL)) {
    text += L"Home ";
  }
  if (const std::optional<DWORD> product = facts.product.Get()) {
    text += ProductEditionText(*product);
    text += L" ";
    AppendServerMode(facts, text);
  }
  AppendArchitecture(facts, text);
}

// There is no name for the 64-bit Windows XP, which shares this version.
const wchar_t* Server2003Name(const SystemFacts& facts) {
  if (facts.metric.Get() == SM_SERVERR2) {
    return L"Microsoft Windows Server 2003 R2 ";
  }
  static constexpr SuiteText kNames[] = {
      {VER_SUITE_BLADE, L"Windows Server 2003 Web "},
      {VER_SUITE_COMPUTE_SERVER, L"Windows Server 2003 Compute Cluster "},
      {VER_SUITE_WH_SERVER, L"Windows Home Server"},
  };
  for (const auto& [suite, name] : kNames) {
    if (HasSuite(facts, suite)) {
      return name;
    }
  }
  return L"Microsoft Windows Server 2003 ";
}

void AppendServer2003Name(const SystemFacts& facts, WString& text) {
  text += Server2003Name(facts);
  static constexpr SuiteText kSuites[] = {
      {VER_SUITE_DATACENTER, L"Datacenter "},
      {VER_SUITE_ENTERPRISE, L"Enterprise "},
      {VER_SUITE_STORAGE_SERVER, L"Storage "},
      {VER_SUITE_BACKOFFICE, L"+BackOffice "},
  };
  for (const auto& [suite, name] : kSuites) {
    if (HasSuite(facts, suite)) {
      text += name;
    }
  }
  AppendArchitecture(facts, text);
  AppendServerMode(facts, text);
}

const wchar_t* XpName(const SystemFacts& facts) {
  switch (facts.metric.Get()) {
    case SM_STARTER:
      return L"Windows XP Starter ";
    // A Tablet PC has no name of its own.
    case SM_MEDIACENTER:
    case SM_TABLETPC:
      return L"Windows XP Media Center ";
    default:
      break;
  }
  if (HasSuite(facts, VER_SUITE_PERSONAL)) {
    return L"Windows XP Home ";
  }
  return HasSuite(facts, VER_SUITE_EMBEDDEDNT) ? L"Windows XP Embedded" : L"Microsoft Windows XP ";
}

void AppendNt5Name(const SystemFacts& facts, WString& text) {
  switch (facts.version.dwMinorVersion) {
    case 0:
      text += L"Microsoft Windows 2000 ";
      break;
    case 1:
      if (!GuardedCall([&] { text += XpName(facts); })) {
        text += L"catched(GetSystemMetrics) Microsoft Windows XP ";
      }
      break;
    case 2:
      if (!GuardedCall([&] { AppendServer2003Name(facts, text); })) {
        text += L"catched(GetSystemMetrics) Windows Server 2003";
      }
      break;
    default:
      break;
  }
}

}  // namespace

void AppendNtName(const SystemFacts& facts, WString& text) {
  const DWORD major = facts.version.dwMajorVersion;
  if (major == 6) {
    AppendNt6Name(facts, text);
  } else if (major == 5) {
    AppendNt5Name(facts, text);
  } else if (major < 5) {
    text += L"Microsoft Windows NT ";
  }
}

}  // namespace kelvo::internal
