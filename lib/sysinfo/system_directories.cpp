#include "lib/sysinfo/system_directories.h"

#include <windows.h>

#include <array>

#include "lib/platform/module.h"

namespace kelvo {

namespace {

std::array<wchar_t, 512> systemDirectory{};

bool EndsInSeparator(const wchar_t* path, std::size_t length) {
  return path[length - 1] == L'\\' || path[length - 1] == L'/';
}

}  // namespace

const wchar_t* GetSystemDirectoryPath() {
  // Leaves room for the backslash that is added when the path does not end in a separator.
  constexpr UINT kCapacity = std::tuple_size_v<decltype(systemDirectory)> - 1;
  const UINT length = GetSystemDirectoryW(systemDirectory.data(), kCapacity);
  if (length == 0 || length >= kCapacity) {
    systemDirectory.front() = L'\0';
  } else if (!EndsInSeparator(systemDirectory.data(), length)) {
    systemDirectory[length] = L'\\';
    systemDirectory[length + 1] = L'\0';
  }
  return systemDirectory.data();
}

WString GetSystemWow64DirectoryPath() {
  auto* const getDirectory =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"Kernel32.dll"), GetSystemWow64DirectoryW);
  std::array<wchar_t, 1024> buffer{};
  const UINT length =
      getDirectory == nullptr ? 0 : getDirectory(buffer.data(), static_cast<UINT>(buffer.size()));
  if (length == 0 || length >= buffer.size()) {
    return {};
  }
  const WString path(buffer.data());
  return EndsInSeparator(buffer.data(), length) ? path : path + L"\\";
}

// Windows redirects the system directory only for 32-bit processes. This library is built only for
// 64-bit processes, so GetSystemDirectoryPath already returns the native directory.
WString GetNativeSystemDirectoryPath() { return {GetSystemDirectoryPath()}; }

}  // namespace kelvo
