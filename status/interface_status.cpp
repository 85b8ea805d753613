#include "status/interface_status.h"

#include <array>

#include "lib/paths/file_exists.h"
#include "lib/paths/module_directory.h"
#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/system_directories.h"

namespace kelvo {

InterfaceFacts QueryInterface() {
  for (const WString folder : {GetModuleDirectory(nullptr), GetSystemDirectoryPath()}) {
    const WString path = folder + L"difxapi.dll";
    if (FileExists(path.c_str())) {
      std::array<wchar_t, 32> version{};  // as much as GetFileVersionString asks for
      GetFileVersionString(version.data(), path.c_str());
      return {path, version.data()};
    }
  }
  return {};
}

Item DescribeInterface(const InterfaceFacts& facts) {
  constexpr const char* kKind = "interface";
  if (facts.path.empty()) {
    return {kKind, State::kAbsent, L"difxapi.dll", {}};
  }
  return {kKind, State::kPresent, facts.path, {TextDetail("version", L"version", facts.version)}};
}

}  // namespace kelvo
