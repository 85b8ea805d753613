#include "lib/paths/module_directory.h"

#include <array>

#include "lib/paths/internal/trailing_backslash.h"
#include "lib/string/wstring.h"

namespace kelvo {

namespace {

std::array<wchar_t, 255> moduleDirectory{};

// Read whole, since only the directory has to fit the buffer.
WString ReadModulePath(HMODULE module) {
  constexpr DWORD kMaxPathLength = 0x8000;
  WString path(kMaxPathLength, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), kMaxPathLength));
  return path;
}

}  // namespace

const wchar_t* GetModuleDirectory(const HMODULE* module) {
  WString path = ReadModulePath(module == nullptr ? nullptr : *module);
  const std::size_t lastBackslash = path.rfind(L"\\");
  if (lastBackslash != WString::npos) {
    path.resize(lastBackslash);
  }
  moduleDirectory.front() = L'\0';
  if (!path.empty() && path.length() < moduleDirectory.size()) {
    lstrcpynW(moduleDirectory.data(), path.c_str(), static_cast<int>(moduleDirectory.size()));
    if (!internal::EnsureTrailingBackslash(moduleDirectory)) {
      moduleDirectory.front() = L'\0';
    }
  }
  return moduleDirectory.data();
}

}  // namespace kelvo
