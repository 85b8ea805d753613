#include "lib/sysinfo/internal/system_description.h"

#include <cwchar>
#include <iterator>
#include <string_view>

#include "lib/platform/internal/guarded_call.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/format_text.h"
#include "lib/sysinfo/internal/nt_name.h"

namespace kelvo::internal {

namespace {

WString ServicePack(const SystemFacts& facts) {
  const auto& text = facts.version.szCSDVersion;
  return WString(std::wstring_view(text, wcsnlen(text, std::size(text))));
}

// Only the low half of the build number: Windows 9x keeps the version in the other.
WORD Build(const SystemFacts& facts) { return LOWORD(facts.version.dwBuildNumber); }

void Append9xName(const SystemFacts& facts, WString& text) {
  struct Release {
    DWORD minor;
    const wchar_t* name;
    std::wstring_view editionLetters;
    const wchar_t* edition;
  };
  static constexpr Release kReleases[] = {
      {0, L"Microsoft Windows 95 ", L"CB", L"OSR2 "},
      {10, L"Microsoft Windows 98 ", L"A", L"SE "},
      {90, L"Microsoft Windows Millennium Edition", L"", L""},
  };
  for (const Release& release : kReleases) {
    if (facts.version.dwMajorVersion == 4 && facts.version.dwMinorVersion == release.minor) {
      text += release.name;
      if (release.editionLetters.find(facts.version.szCSDVersion[1]) != std::wstring_view::npos) {
        text += release.edition;
      }
    }
  }
}

// What the extended record would have told; false when the text ends here.
bool AppendProductType(const SystemFacts& facts, WString& text) {
  const ProductOption& option = facts.productOption.Get();
  switch (option.state) {
    case ProductOption::State::kNoKey:
      text += L"error obtaining Windows NT4 registry information";
      return false;
    case ProductOption::State::kNoValue:
      text += L"error obtaining Windows NT4 registry product information";
      return false;
    case ProductOption::State::kRead:
      break;
  }
  struct Product {
    const wchar_t* type;
    const wchar_t* text;
  };
  static constexpr Product kProducts[] = {
      {L"WINNT", L"Workstation "}, {L"LANMANNT", L"Server "}, {L"SERVERNT", L"Advanced Server "}};
  for (const Product& product : kProducts) {
    if (CompareNoCase(option.productType.c_str(), product.type) == 0) {
      text += product.text;
    }
  }
  text += FormatText(L"%d.%d ", facts.version.dwMajorVersion, facts.version.dwMinorVersion);
  return true;
}

void AppendNumbers(const SystemFacts& facts, WString& text) {
  const OSVERSIONINFOEXW& version = facts.version;
  const WString servicePack = ServicePack(facts);
  if (version.dwMajorVersion == 4 && CompareNoCase(servicePack.c_str(), L"Service Pack 6") == 0) {
    text += FormatText(L"%s (Build %d)",
                       facts.hasHotfixQ246009.Get() ? L"Service Pack 6a" : servicePack.c_str(),
                       Build(facts));
  } else if (servicePack.empty()) {
    text += FormatVersionNumbers(version);
  } else {
    text += FormatText(L"(%i.%i.%i %s)", version.dwMajorVersion, version.dwMinorVersion,
                       Build(facts), servicePack.c_str());
  }
}

void AppendDescription(const SystemFacts& facts, WString& text) {
  switch (facts.version.dwPlatformId) {
    case VER_PLATFORM_WIN32s:
      text += L"Microsoft Win32s";
      break;
    case VER_PLATFORM_WIN32_WINDOWS:
      Append9xName(facts, text);
      break;
    case VER_PLATFORM_WIN32_NT:
      AppendNtName(facts, text);
      if (facts.record == VersionRecord::kExtended || AppendProductType(facts, text)) {
        AppendNumbers(facts, text);
      }
      break;
    default:
      break;
  }
}

}  // namespace

WString FormatVersionNumbers(const OSVERSIONINFOEXW& version) {
  return FormatText(L"(%i.%i.%i)", version.dwMajorVersion, version.dwMinorVersion,
                    LOWORD(version.dwBuildNumber));
}

WString DescribeSystem(const SystemFacts& facts) {
  if (facts.record == VersionRecord::kNone) {
    return L"queryingg OSVERSIONINFOEX and OSVERSIONINFO failed...";
  }
  WString text;
  if (!GuardedCall([&] { AppendDescription(facts, text); })) {
    text += kDescriptionCutShort;
  }
  return text;
}

}  // namespace kelvo::internal
