#include "lib/sysinfo/internal/fixed_file_version.h"

#include <cstring>
#include <span>

#include "lib/sysinfo/internal/version_value.h"

namespace kelvo::internal {

namespace {

std::optional<FileVersionNumbers> FindNumbers(std::span<const BYTE> resource) {
  const std::span<const BYTE> value = FindVersionValue(resource, L"\\", sizeof(BYTE));
  VS_FIXEDFILEINFO block{};
  if (value.size() < sizeof(block)) {
    return std::nullopt;
  }
  std::memcpy(&block, value.data(), sizeof(block));
  return FileVersionNumbers{HIWORD(block.dwFileVersionMS), LOWORD(block.dwFileVersionMS),
                            HIWORD(block.dwFileVersionLS), LOWORD(block.dwFileVersionLS)};
}

}  // namespace

FixedFileVersion ReadFixedFileVersion(const wchar_t* path) {
  FixedFileVersion version;
  DWORD ignored = 0;
  const DWORD size = GetFileVersionInfoSizeW(path, &ignored);
  if (size == 0) {
    return version;
  }
  version.memory.reset(GlobalAlloc(GMEM_MOVEABLE, size));
  void* const resource = GlobalLock(version.memory.get());
  if (resource == nullptr) {
    return version;
  }
  // Zeroes the memory first, because GetFileVersionInfoW can leave part of it unwritten.
  std::memset(resource, 0, size);
  if (GetFileVersionInfoW(path, 0, size, resource) != FALSE) {
    version.numbers = FindNumbers({static_cast<const BYTE*>(resource), size});
  }
  return version;
}

}  // namespace kelvo::internal
