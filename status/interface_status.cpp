#include "status/interface_status.h"

#include <array>

#include "lib/paths/file_exists.h"
#include "lib/sysinfo/file_version.h"
#include "tool/driver_interface.h"

namespace kelvo {

InterfaceFacts QueryInterface() {
  const WString path = DriverInterfacePath();
  if (!FileExists(path.c_str())) {
    return {};
  }
  std::array<wchar_t, kFileVersionStringCapacity> version{};
  GetFileVersionString(version.data(), path.c_str());
  return {path, version.data()};
}

Item DescribeInterface(const InterfaceFacts& facts) {
  constexpr const char* kKind = "interface";
  if (facts.path.empty()) {
    return {kKind, State::kAbsent, L"difxapi.dll", {}};
  }
  return {kKind, State::kPresent, facts.path, {TextDetail("version", L"version", facts.version)}};
}

}  // namespace kelvo
