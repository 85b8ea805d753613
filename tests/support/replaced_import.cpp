#include "tests/support/replaced_import.h"

#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace kelvo::test {

namespace {

template <typename Content>
Content* AtImageOffset(std::uint64_t offset) {
  return reinterpret_cast<Content*>(reinterpret_cast<std::uintptr_t>(GetModuleHandleW(nullptr)) +
                                    offset);
}

std::map<std::string, void*> replacedExports;

struct FindExport {
  FARPROC operator()(decltype(&::GetProcAddress) original, HMODULE module, LPCSTR name) const {
    if (!IS_INTRESOURCE(name)) {
      const auto replaced = replacedExports.find(name);
      if (replaced != replacedExports.end()) {
        SetLastError(replaced->second == nullptr ? ERROR_PROC_NOT_FOUND : ERROR_SUCCESS);
        return reinterpret_cast<FARPROC>(replaced->second);
      }
    }
    return original(module, name);
  }
};

std::unique_ptr<ReplacedImport<decltype(::GetProcAddress), FindExport>> replacedLookup;

}  // namespace

void** internal::FindImportSlot(const char* function) {
  const auto* const dos = AtImageOffset<IMAGE_DOS_HEADER>(0);
  const auto& directories =
      AtImageOffset<IMAGE_NT_HEADERS>(static_cast<std::uint64_t>(dos->e_lfanew))
          ->OptionalHeader.DataDirectory;
  const auto* library = AtImageOffset<IMAGE_IMPORT_DESCRIPTOR>(
      directories[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
  for (; library->Name != 0; ++library) {
    const auto* name = AtImageOffset<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
    auto* slot = AtImageOffset<IMAGE_THUNK_DATA>(library->FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
      if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal) &&
          std::strcmp(AtImageOffset<IMAGE_IMPORT_BY_NAME>(name->u1.AddressOfData)->Name,
                      function) == 0) {
        return reinterpret_cast<void**>(&slot->u1.Function);
      }
    }
  }
  throw std::runtime_error(std::string("this program does not import ") + function);
}

void* internal::SwapImportSlot(void** slot, void* target) {
  DWORD protection = 0;
  VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection);
  void* const previous = std::exchange(*slot, target);
  VirtualProtect(slot, sizeof(*slot), protection, &protection);
  return previous;
}

ReplacedExport::ReplacedExport(const char* name, void* function) : name_(name) {
  replacedExports[name_] = function;
  if (replacedLookup == nullptr) {
    replacedLookup = std::make_unique<ReplacedImport<decltype(::GetProcAddress), FindExport>>(
        "GetProcAddress", FindExport{});
  }
}

ReplacedExport::~ReplacedExport() {
  replacedExports.erase(name_);
  if (replacedExports.empty()) {
    replacedLookup.reset();
  }
}

}  // namespace kelvo::test
