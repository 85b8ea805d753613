#include "lib/registry/registry_key_tree.h"

#include <array>

#include "lib/platform/module.h"
#include "lib/registry/registry_key.h"
#include "lib/string/wstring.h"

namespace kelvo {

namespace {

constexpr REGSAM kDeleteSubkeys =
    STANDARD_RIGHTS_READ | KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_ENUMERATE_SUB_KEYS;
constexpr REGSAM kDeleteValues = kDeleteSubkeys | KEY_QUERY_VALUE;
constexpr DWORD kNameLength = 255;

// NOLINTBEGIN(misc-no-recursion): a registry path is at most 512 keys deep

// Both loops ask for index 0 each time: the one before is gone.

LSTATUS DeleteSubkeys(HKEY root, const wchar_t* path) {
  for (;;) {
    OwnedRegistryKey key;
    std::array<wchar_t, kNameLength> name{};
    DWORD length = kNameLength;
    if (OpenRegistryKey(root, path, kDeleteSubkeys, key) != ERROR_SUCCESS ||
        RegEnumKeyExW(key.get(), 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
      return ERROR_SUCCESS;
    }
    const LSTATUS status = RegistryDeleteKeyTree(root, path, name.data());
    if (status != ERROR_SUCCESS) {
      return status;
    }
  }
}

LSTATUS DeleteValues(HKEY root, const wchar_t* path) {
  for (;;) {
    OwnedRegistryKey key;
    std::array<wchar_t, kNameLength> name{};
    DWORD length = kNameLength;
    if (OpenRegistryKey(root, path, kDeleteValues, key) != ERROR_SUCCESS ||
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

LSTATUS DeleteEmptyKey(HKEY root, const wchar_t* parentPath, const wchar_t* keyName) {
  OwnedRegistryKey parent;
  const LSTATUS status = OpenRegistryKey(root, parentPath, kDeleteSubkeys, parent);
  if (status != ERROR_SUCCESS) {
    return status;
  }
  auto* const deleteKeyEx = KELVO_FIND_FUNCTION(GetModuleHandleW(L"advapi32.dll"), RegDeleteKeyExW);
  return deleteKeyEx != nullptr ? deleteKeyEx(parent.get(), keyName, RegistryAccessFlags, 0)
                                : RegDeleteKeyW(parent.get(), keyName);
}

}  // namespace

LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName) {
  if (WString(parentPath).empty() || WString(keyName).empty()) {
    return ERROR_ACCESS_DENIED;
  }
  const WString path = WString(parentPath) + L"\\" + keyName;
  LSTATUS status = DeleteSubkeys(root, path.c_str());
  if (status == ERROR_SUCCESS) {
    status = DeleteValues(root, path.c_str());
  }
  return status == ERROR_SUCCESS ? DeleteEmptyKey(root, parentPath, keyName) : status;
}

// NOLINTEND(misc-no-recursion)

}  // namespace kelvo
