// Makes VerQueryValueW return a random length and a random position in or near a version resource.

#include <cstdlib>
#include <memory>
#include <new>

#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "tests/fuzz/input.h"
#include "tests/support/replaced_import.h"

namespace kelvo::fuzz {

// The memory for the version resource, next to an inaccessible page. The operator new below returns
// this memory for each allocation of exactly `resourceSize` bytes.
static std::size_t resourceSize = 0;
static std::unique_ptr<GuardedMemory> resource;

static const Target kVersionResources("version resources", [](Input& input) {
  static Input* random;
  static REPLACE(GetFileVersionInfoSizeW, [](auto...) { return static_cast<DWORD>(resourceSize); });
  static REPLACE(GetFileVersionInfoW, [](auto, auto, auto, DWORD size, void* data) {
    std::memset(data, static_cast<int>(random->Number(0xFF)), size);
    return TRUE;
  });
  static REPLACE(VerQueryValueW, [](auto, const void* block, auto, void** found, UINT* length) {
    const std::size_t place = random->Number(resourceSize / 2 + 8) * 2;
    *found = static_cast<char*>(const_cast<void*>(block)) + place - 8;
    *length = static_cast<UINT>(random->Number(random->Chance() ? 100 : 0xFFFFFFFF));
    return TRUE;
  });
  static REPLACE(GlobalAlloc, [](auto...) -> HGLOBAL { return resource.get(); });
  static REPLACE(GlobalLock, [](auto...) -> void* { return resource->As<void>(); });
  static REPLACE(GlobalUnlock, [](auto...) { return TRUE; });
  static REPLACE(GlobalFree, [](auto...) -> HGLOBAL { return nullptr; });
  random = &input;
  const std::size_t size = 1000 + input.Number(100) * 2;
  resource = std::make_unique<GuardedMemory>(size, input.Chance());
  resourceSize = size;
  CompareFileVersion(L"", 1, 2, 3, 4);
  GetFileVersionText(L"");
  resourceSize = 0;
});

}  // namespace kelvo::fuzz

void* operator new(std::size_t size) {
  using namespace kelvo::fuzz;
  return size == resourceSize ? resource->As<void>() : std::malloc(size);
}
void operator delete(void* block) noexcept {
  using namespace kelvo::fuzz;
  if (resource == nullptr || block != resource->As<void>()) {
    std::free(block);
  }
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
