#pragma once

#include <windows.h>

#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

// REPLACE and ReplacedExport replace Windows functions until the end of the enclosing block.
//
// REPLACE replaces an imported function. The lambda takes the original function and the arguments:
//   REPLACE(RegDeleteValueW, [](auto original, HKEY key, auto name) { return 5L; });
// ReplacedExport makes GetProcAddress return a replacement, which must have the type of the
// exported function. A null replacement simulates a Windows version that lacks the function:
//   const ReplacedExport native("GetNativeSystemInfo", nullptr);

namespace kelvo::test {

// Calls `visit(library, function, slot)` for each function that a module imports by name, until
// `visit` returns true. `slot` is the function's entry in the import address table.
template <typename Visit>
void VisitImports(HMODULE module, Visit visit) {
  auto* const image = reinterpret_cast<BYTE*>(module);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(
      image + reinterpret_cast<IMAGE_DOS_HEADER*>(image)->e_lfanew);
  const auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(
      image + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
  for (; library->Name != 0; ++library) {
    for (DWORD at = 0;; at += sizeof(ULONG_PTR)) {
      // Uses memcpy, because mingw's import libraries align the table entries to only 4 bytes.
      ULONG_PTR name = 0;
      std::memcpy(&name, image + library->OriginalFirstThunk + at, sizeof(name));
      if (name == 0) {
        break;
      }
      if (!IMAGE_SNAP_BY_ORDINAL(name) &&
          visit(reinterpret_cast<const char*>(image + library->Name),
                std::string(reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(image + name)->Name),
                image + library->FirstThunk + at)) {
        return;
      }
    }
  }
}

// Replaces the imported `function` of `module` with `target`. Returns the previous target.
inline void* SwapImport(const std::string& function, void* target,
                        HMODULE module = GetModuleHandleW(nullptr)) {
  void* previous = nullptr;
  VisitImports(module, [&](const char*, const std::string& name, BYTE* slot) {
    if (name != function) {
      return false;
    }
    DWORD protection = 0;
    VirtualProtect(slot, sizeof(previous), PAGE_READWRITE, &protection);
    std::memcpy(&previous, slot, sizeof(previous));
    std::memcpy(slot, &target, sizeof(target));
    return true;
  });
  return previous != nullptr ? previous
                             : throw std::runtime_error("the module does not import " + function);
}

// Until this object is destroyed, `replacement` is called in place of an imported function. The
// arguments of `replacement` are the original function, then the arguments of the call.
template <typename Function, typename Replacement>
struct ReplacedImport;

template <typename Result, typename... Parameters, typename Replacement>
struct ReplacedImport<Result(Parameters...), Replacement> {
  ReplacedImport(const char* imported, Replacement instead)
      : function(imported),
        replacement(std::move(instead)),
        original(SwapImport(imported, reinterpret_cast<void*>(&Call))) {
    active = this;
  }
  ReplacedImport(const ReplacedImport&) = delete;
  ~ReplacedImport() { SwapImport(function, original); }

  static Result Call(Parameters... parameters) {
    return active->replacement(reinterpret_cast<Result (*)(Parameters...)>(active->original),
                               parameters...);
  }

  // Each lambda has its own type, and so its own `active`.
  static inline ReplacedImport* active = nullptr;
  const char* function;
  Replacement replacement;
  void* original;
};

template <typename Function, typename Replacement>
ReplacedImport<Function, Replacement> ReplaceImport(const char* function, Replacement replacement) {
  return {function, std::move(replacement)};
}

#define REPLACE(function, ...)    \
  const auto replaced##function = \
      ::kelvo::test::ReplaceImport<decltype(::function)>(#function, __VA_ARGS__)

// Counts the calls to an imported function. Each call still reaches the original function.
#define COUNT_CALLS(function, count)                         \
  REPLACE(function, [&](auto original, auto... parameters) { \
    ++(count);                                               \
    return original(parameters...);                          \
  })

// Until this object is destroyed, makes GetProcAddress return `function` for the name `exported`,
// whichever module is passed. A null `function` simulates a Windows version that lacks the export.
struct ReplacedExport {
  ReplacedExport(const char* exported, void* function) : name(exported) {
    replaced[name] = reinterpret_cast<FARPROC>(function);
    static REPLACE(GetProcAddress, [](auto original, HMODULE module, LPCSTR asked) {
      const auto found = replaced.find(IS_INTRESOURCE(asked) ? "" : asked);
      if (found == replaced.end()) {
        return original(module, asked);
      }
      SetLastError(found->second == nullptr ? ERROR_PROC_NOT_FOUND : ERROR_SUCCESS);
      return found->second;
    });
  }
  template <typename Function>
  ReplacedExport(const char* exported, Function* function)
      : ReplacedExport(exported, reinterpret_cast<void*>(function)) {}
  ReplacedExport(const ReplacedExport&) = delete;
  ~ReplacedExport() { replaced.erase(name); }

  static inline std::map<std::string, FARPROC> replaced;
  const char* name;
};

}  // namespace kelvo::test
