#include "tool/dependent_applications.h"

#include <windows.h>

#include <string_view>

#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/string_tokenizer.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kSeparator = L";";

void WriteList(const WString& list) {
  RegistryWriteString(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName,
                      list.c_str());
}

WString WithoutOuterSeparators(std::wstring_view list) {
  const std::size_t first = list.find_first_not_of(kSeparator);
  if (first == std::wstring_view::npos) {
    return {};
  }
  return WString(list.substr(first, list.find_last_not_of(kSeparator) + 1 - first));
}

}  // namespace

WString ReadApplicationList() {
  return RegistryReadString(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName, L"");
}

std::vector<WString> ApplicationsInList(const WString& list) {
  std::vector<WString> names;
  for (StringTokenizer items(list, kSeparator, true); items.HasMoreTokens();) {
    names.push_back(items.NextToken());
  }
  return names;
}

bool IsSameApplication(const WString& item, const wchar_t* name) {
  return CompareNoCase(item.c_str(), name) == 0;
}

std::optional<WString> ListWithApplication(const WString& list, const wchar_t* name) {
  if (list.find(name) != WString::npos) {
    return std::nullopt;
  }
  return WithoutOuterSeparators(list + kSeparator + name);
}

WString ListWithoutApplication(const WString& list, const wchar_t* name) {
  WString kept;
  for (const WString& item : ApplicationsInList(list)) {
    if (!IsSameApplication(item, name)) {
      kept += item;
      kept += kSeparator;
    }
  }
  return WithoutOuterSeparators(kept);
}

bool AddDependentApplication(const wchar_t* name) {
  if (const auto list = ListWithApplication(ReadApplicationList(), name)) {
    WriteList(*list);
  }
  return true;
}

bool RemoveDependentApplication(const wchar_t* name, bool& noneLeft) {
  const WString list = ListWithoutApplication(ReadApplicationList(), name);
  noneLeft = list.empty();
  if (noneLeft) {
    RegistryDeleteValue(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName);
    Report(L"OK: No more dependant applications\n");
  } else {
    // Writes the list even when no name was removed, because writing it also removes superfluous
    // separators from the stored list.
    WriteList(list);
    Report(L"OK: Dependant applications exist: %s\n", list.c_str());
  }
  return true;
}

}  // namespace kelvo
