#include "lib/paths/module_directory.h"

#include <array>
#include <cwchar>

#include "lib/paths/internal/trailing_backslash.h"

namespace kelvo {

namespace {

std::array<wchar_t, 255> moduleDirectory{};

bool ReadModulePath(HMODULE module) {
  const auto capacity = static_cast<DWORD>(moduleDirectory.size());
  const DWORD length = GetModuleFileNameW(module, moduleDirectory.data(), capacity);
  // A path that was cut has the capacity as its length.
  return length > 0 && length < capacity;
}

bool CutToDirectory() {
  wchar_t* const lastBackslash = std::wcsrchr(moduleDirectory.data(), L'\\');
  if (lastBackslash != nullptr) {
    *lastBackslash = L'\0';
  }
  return internal::EnsureTrailingBackslash(moduleDirectory);
}

}  // namespace

const wchar_t* GetModuleDirectory(const HMODULE* module) {
  if (!ReadModulePath(module == nullptr ? nullptr : *module) || !CutToDirectory()) {
    moduleDirectory.front() = L'\0';
  }
  return moduleDirectory.data();
}

}  // namespace kelvo
