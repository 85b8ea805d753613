#include "lib/registry/registry_value_path.h"

#include <string_view>

namespace kelvo {

namespace {

struct Root {
  std::wstring_view prefix;
  HKEY key;
};

const Root kRoots[] = {
    {L"HKEY_CLASSES_ROOT\\", HKEY_CLASSES_ROOT},
    {L"HKEY_CURRENT_USER\\", HKEY_CURRENT_USER},
    {L"HKEY_LOCAL_MACHINE\\", HKEY_LOCAL_MACHINE},
    {L"HKEY_USERS\\", HKEY_USERS},
};

const Root* FindRoot(std::wstring_view path) {
  for (const Root& root : kRoots) {
    if (path.starts_with(root.prefix)) {
      return &root;
    }
  }
  return nullptr;
}

}  // namespace

bool ParseRegistryValuePath(const WString& fullPath, HKEY& root, WString& keyPath,
                            WString& valueName) {
  const Root* const found = FindRoot(fullPath);
  if (found == nullptr) {
    return false;
  }
  root = found->key;
  // Makes a copy, since `fullPath` may be the same object as `keyPath` or `valueName`.
  const WString path = fullPath.substr(found->prefix.length());
  const std::size_t backslash = path.rfind(L"\\");
  if (backslash == WString::npos) {
    return false;
  }
  keyPath = path.substr(0, backslash);
  valueName = path.substr(backslash + 1);
  return !keyPath.empty() && !valueName.empty();
}

}  // namespace kelvo
