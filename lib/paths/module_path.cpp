#include "lib/paths/module_path.h"

namespace kelvo {

WString ReadModulePath(HMODULE module) {
  constexpr DWORD kMaxPathLength = 0x8000;
  WString path(kMaxPathLength, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), kMaxPathLength));
  return path;
}

}  // namespace kelvo
