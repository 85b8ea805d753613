#include "status/application_status.h"

#include <algorithm>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_string.h"
#include "tool/dependent_applications.h"

namespace kelvo {

namespace {

constexpr const char* kApplication = "application";

bool IsThere(const ApplicationList& list) {
  return list.error != ERROR_FILE_NOT_FOUND && list.error != ERROR_PATH_NOT_FOUND;
}

Detail DescribeList(const ApplicationList& list, bool isEmpty) {
  constexpr const char* kKey = "list";
  if (!IsThere(list)) {
    return {kKey, L"none", L"none is recorded"};
  }
  if (list.type != REG_SZ && list.type != REG_EXPAND_SZ) {
    return {kKey, L"not text", L"the list is not text: sorrel.exe takes it as empty"};
  }
  if (list.size > kMaxRegistryStringSize) {
    return {kKey, L"too long", L"the list is too long: sorrel.exe takes it as empty"};
  }
  return {kKey, isEmpty ? L"empty" : L"text", isEmpty ? L"the list is empty" : L""};
}

bool IsListed(const std::vector<WString>& listed, const WString& name) {
  return std::any_of(listed.begin(), listed.end(), [&name](const WString& item) {
    return IsSameApplication(item, name.c_str());
  });
}

}  // namespace

ApplicationList QueryApplicationList() {
  ApplicationList list;
  OwnedRegistryKey key;
  list.error = OpenRegistryKey(HKEY_LOCAL_MACHINE, ServiceParametersKey, KEY_READ, key);
  if (list.error == ERROR_SUCCESS) {
    list.error = RegQueryValueExW(key.get(), ApplicationsValueName, nullptr, &list.type, nullptr,
                                  &list.size);
  }
  list.text = ReadApplicationList();
  return list;
}

std::vector<Item> DescribeApplications(const ApplicationList& list,
                                       const std::vector<WString>& names) {
  const std::vector<WString> listed = ApplicationsInList(list.text);
  const std::vector<WString> nameless(1);
  const std::vector<WString>& all = listed.empty() ? nameless : listed;
  const Detail listDetail = DescribeList(list, listed.empty());
  std::vector<Item> items;
  for (const WString& name : names.empty() ? all : names) {
    if (list.error != ERROR_SUCCESS && IsThere(list)) {
      items.push_back(UnknownItem(kApplication, name, static_cast<DWORD>(list.error)));
    } else {
      items.push_back({kApplication,
                       IsListed(listed, name) ? State::kPresent : State::kAbsent,
                       name,
                       {listDetail}});
    }
  }
  return items;
}

}  // namespace kelvo
