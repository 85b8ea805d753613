#include "lib/sysinfo/common_controls_version.h"

#include <windows.h>

#include <shlwapi.h>

#include <type_traits>

#include "lib/platform/module.h"

namespace kelvo {

HRESULT GetComCtlVersion(DWORD* major, DWORD* minor) {
  if (IsBadWritePtr(major, sizeof(*major)) != FALSE ||
      IsBadWritePtr(minor, sizeof(*minor)) != FALSE) {
    return E_INVALIDARG;
  }
  const OwnedModule library(LoadLibraryW(L"comctl32.dll"));
  if (!library) {
    return E_FAIL;
  }
  auto* const getVersion =
      FindFunction<std::remove_pointer_t<DLLGETVERSIONPROC>>(library.get(), "DllGetVersion");
  if (getVersion == nullptr) {
    *major = 4;
    *minor = 0;
    return S_OK;
  }
  DLLVERSIONINFO version{};
  version.cbSize = sizeof(version);
  const HRESULT result = getVersion(&version);
  if (FAILED(result)) {
    return E_FAIL;
  }
  *major = version.dwMajorVersion;
  *minor = version.dwMinorVersion;
  return result;
}

DWORD GetComCtlVersionPacked() {
  DWORD major = 0;
  DWORD minor = 0;
  return SUCCEEDED(GetComCtlVersion(&major, &minor)) ? (major << 16) | (minor & 0xFFFF) : 0;
}

}  // namespace kelvo
