#include "lib/registry/registry_key_tree.h"

#include <array>
#include <vector>

#include "lib/platform/module.h"
#include "lib/registry/registry_key.h"
#include "lib/string/wstring.h"

namespace kelvo {

namespace {

constexpr REGSAM kDeleteSubkeys =
    STANDARD_RIGHTS_READ | KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_ENUMERATE_SUB_KEYS;
constexpr REGSAM kDeleteValues = kDeleteSubkeys | KEY_QUERY_VALUE;
constexpr DWORD kNameLength = 255;

// FirstSubkey and DeleteValues enumerate only index 0. The subkey or value that they find is
// deleted before they enumerate the same key again. Then another subkey or value has index 0.

// Returns an empty string when the key has no subkey, cannot be opened or cannot be enumerated.
WString FirstSubkey(HKEY root, const WString& path) {
  OwnedRegistryKey key;
  std::array<wchar_t, kNameLength> name{};
  DWORD length = kNameLength;
  if (OpenRegistryKey(root, path.c_str(), kDeleteSubkeys, key) != ERROR_SUCCESS ||
      RegEnumKeyExW(key.get(), 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
          ERROR_SUCCESS) {
    return {};
  }
  return {name.data()};
}

LSTATUS DeleteValues(HKEY root, const WString& path) {
  for (;;) {
    OwnedRegistryKey key;
    std::array<wchar_t, kNameLength> name{};
    DWORD length = kNameLength;
    if (OpenRegistryKey(root, path.c_str(), kDeleteValues, key) != ERROR_SUCCESS ||
        RegEnumValueW(key.get(), 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
      return ERROR_SUCCESS;
    }
    const LSTATUS status = RegDeleteValueW(key.get(), name.data());
    if (status != ERROR_SUCCESS) {
      return status;
    }
  }
}

LSTATUS DeleteEmptyKey(HKEY root, const WString& parentPath, const WString& keyName) {
  OwnedRegistryKey parent;
  const LSTATUS status = OpenRegistryKey(root, parentPath.c_str(), kDeleteSubkeys, parent);
  if (status != ERROR_SUCCESS) {
    return status;
  }
  auto* const deleteKeyEx = KELVO_FIND_FUNCTION(GetModuleHandleW(L"advapi32.dll"), RegDeleteKeyExW);
  return deleteKeyEx != nullptr ? deleteKeyEx(parent.get(), keyName.c_str(), RegistryAccessFlags, 0)
                                : RegDeleteKeyW(parent.get(), keyName.c_str());
}

}  // namespace

LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName) {
  if (WString(parentPath).empty() || WString(keyName).empty()) {
    return ERROR_ACCESS_DENIED;
  }
  // `path` is the path of the current key. `parentLengths` has the lengths of the paths of its
  // ancestors, from `parentPath` down to the direct parent. The code uses a loop, because recursion
  // could overflow the stack when the tree is very deep.
  WString path = WString(parentPath) + L"\\" + keyName;
  std::vector<std::size_t> parentLengths{WString(parentPath).length()};
  while (!parentLengths.empty()) {
    const WString subkey = FirstSubkey(root, path);
    if (!subkey.empty()) {
      parentLengths.push_back(path.length());
      path += L"\\" + subkey;
      continue;
    }
    LSTATUS status = DeleteValues(root, path);
    if (status == ERROR_SUCCESS) {
      status = DeleteEmptyKey(root, path.substr(0, parentLengths.back()),
                              path.substr(parentLengths.back() + 1));
    }
    if (status != ERROR_SUCCESS) {
      return status;
    }
    path.resize(parentLengths.back());
    parentLengths.pop_back();
  }
  return ERROR_SUCCESS;
}

}  // namespace kelvo
