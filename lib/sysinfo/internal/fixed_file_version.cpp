#include "lib/sysinfo/internal/fixed_file_version.h"

namespace kelvo::internal {

FileVersionNumbers FixedFileVersion::Numbers() const {
  return {HIWORD(block->dwFileVersionMS), LOWORD(block->dwFileVersionMS),
          HIWORD(block->dwFileVersionLS), LOWORD(block->dwFileVersionLS)};
}

FixedFileVersion ReadFixedFileVersion(const wchar_t* path) {
  FixedFileVersion version;
  DWORD ignored = 0;
  const DWORD size = GetFileVersionInfoSizeW(path, &ignored);
  if (size == 0) {
    return version;
  }
  version.memory.reset(GlobalAlloc(GMEM_MOVEABLE, size));
  void* const resource = GlobalLock(version.memory.get());
  void* block = nullptr;
  UINT length = 0;
  if (resource != nullptr && GetFileVersionInfoW(path, 0, size, resource) != FALSE &&
      VerQueryValueW(resource, L"\\", &block, &length) != FALSE &&
      length >= sizeof(VS_FIXEDFILEINFO)) {
    version.block = static_cast<const VS_FIXEDFILEINFO*>(block);
  }
  return version;
}

}  // namespace kelvo::internal
