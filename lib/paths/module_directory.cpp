#include "lib/paths/module_directory.h"

#include <array>

#include "lib/paths/module_path.h"

namespace kelvo {

namespace {

std::array<wchar_t, 255> moduleDirectory{};

}  // namespace

const wchar_t* GetModuleDirectory(const HMODULE* module) {
  // Reads the path into a WString, not into `moduleDirectory`: the path can be too long for that
  // buffer even when its directory part fits.
  WString path = ReadModulePath(module == nullptr ? nullptr : *module);
  const std::size_t lastBackslash = path.rfind(L"\\");
  if (lastBackslash != WString::npos) {
    path.resize(lastBackslash);
  }
  if (!path.empty() && !std::wstring_view(path).ends_with(L'\\')) {
    path += L"\\";
  }
  const bool fits = path.length() < moduleDirectory.size();
  lstrcpynW(moduleDirectory.data(), fits ? path.c_str() : L"",
            static_cast<int>(moduleDirectory.size()));
  return moduleDirectory.data();
}

}  // namespace kelvo
