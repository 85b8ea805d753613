#include "status/application_status.h"

#include <algorithm>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_string.h"
#include "tool/dependent_applications.h"

namespace kelvo {

namespace {

constexpr const char* kApplication = "application";

// Describes the registry value that holds the list of applications. The value may have any type and
// size.
struct StoredList {
  LSTATUS error = ERROR_SUCCESS;  // the error of OpenRegistryKey or RegQueryValueExW
  DWORD type = REG_NONE;
  DWORD size = 0;  // in bytes

  [[nodiscard]] bool IsThere() const {
    return error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND;
  }
};

StoredList QueryStoredList() {
  StoredList list;
  OwnedRegistryKey key;
  list.error = OpenRegistryKey(HKEY_LOCAL_MACHINE, ServiceParametersKey, KEY_READ, key);
  if (list.error == ERROR_SUCCESS) {
    list.error = RegQueryValueExW(key.get(), ApplicationsValueName, nullptr, &list.type, nullptr,
                                  &list.size);
  }
  return list;
}

Detail DescribeList(const StoredList& list, bool isEmpty) {
  constexpr const char* kKey = "list";
  if (!list.IsThere()) {
    return {kKey, L"none", L"no list is recorded"};
  }
  if (list.type != REG_SZ && list.type != REG_EXPAND_SZ) {
    return {kKey, L"not text", L"the list is not text: sorrel.exe treats it as empty"};
  }
  if (list.size > kMaxRegistryStringSize) {
    return {kKey, L"too long", L"the list is too long: sorrel.exe treats it as empty"};
  }
  return {kKey, isEmpty ? L"empty" : L"text", isEmpty ? L"the list is empty" : L""};
}

State StateOf(const WString& name, const std::vector<WString>& listed) {
  const bool isListed = std::any_of(listed.begin(), listed.end(), [&name](const WString& item) {
    return IsSameApplication(item, name.c_str());
  });
  return isListed ? State::kPresent : State::kAbsent;
}

}  // namespace

std::vector<Item> QueryApplications(const std::vector<WString>& names) {
  const StoredList list = QueryStoredList();
  const std::vector<WString> listed = ApplicationsInList(ReadApplicationList());
  const std::vector<WString> nameless(1);
  const std::vector<WString>& all = listed.empty() ? nameless : listed;
  const Detail listDetail = DescribeList(list, listed.empty());
  std::vector<Item> items;
  for (const WString& name : names.empty() ? all : names) {
    if (list.error != ERROR_SUCCESS && list.IsThere()) {
      items.push_back(UnknownItem(kApplication, name, static_cast<DWORD>(list.error)));
    } else {
      items.push_back({kApplication, StateOf(name, listed), name, {listDetail}});
    }
  }
  return items;
}

}  // namespace kelvo
