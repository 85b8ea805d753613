#include "lib/sysinfo/internal/version_value.h"

#include <algorithm>

namespace kelvo::internal {

std::span<const BYTE> FindVersionValue(std::span<const BYTE> resource, const wchar_t* path,
                                       std::size_t unitSize) {
  void* found = nullptr;
  UINT length = 0;
  if (VerQueryValueW(resource.data(), path, &found, &length) == FALSE) {
    return {};
  }
  // If `found` is before the resource, the unsigned subtraction wraps around. The offset is then
  // greater than the size of the resource.
  const std::size_t offset =
      reinterpret_cast<ULONG_PTR>(found) - reinterpret_cast<ULONG_PTR>(resource.data());
  if (offset >= resource.size()) {
    return {};
  }
  return resource.subspan(offset, std::min(length * unitSize, resource.size() - offset));
}

}  // namespace kelvo::internal
