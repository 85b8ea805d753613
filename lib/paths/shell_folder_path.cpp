#include "lib/paths/shell_folder_path.h"

#include "lib/paths/internal/trailing_backslash.h"
#include "lib/paths/module_directory.h"
#include "lib/registry/registry_string.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kExplorer = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

struct Place {
  HKEY root;
  const wchar_t* key;
};

}  // namespace

bool GetShellFolderPath(const HMODULE* module, std::span<wchar_t, MAX_PATH> out,
                        const wchar_t* valueName) {
  const Place places[] = {
      {.root = HKEY_CURRENT_USER, .key = L"User Shell Folders"},
      {.root = HKEY_LOCAL_MACHINE, .key = L"User Shell Folders"},
      {.root = HKEY_CURRENT_USER, .key = L"Shell Folders"},
      {.root = HKEY_LOCAL_MACHINE, .key = L"Shell Folders"},
  };
  for (const auto& [root, key] : places) {
    const WString subkey = WString(kExplorer) + key;
    if (RegistryReadStoredString(root, subkey.c_str(), valueName, out.data(), out.size()) > 0 &&
        internal::EnsureTrailingBackslash(out)) {
      return true;
    }
  }
  lstrcpynW(out.data(), GetModuleDirectory(module), static_cast<int>(out.size()));
  return out.front() != L'\0';
}

}  // namespace kelvo
