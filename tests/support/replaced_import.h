#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace kelvo::test {

// Sends the calls that this program makes to an imported function to `target`, and returns where
// they went before.
inline void* SwapImport(const std::string& function, void* target) {
  auto* const image = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(
      image + reinterpret_cast<IMAGE_DOS_HEADER*>(image)->e_lfanew);
  const auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(
      image + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
  for (; library->Name != 0; ++library) {
    const auto* const names = reinterpret_cast<ULONG_PTR*>(image + library->OriginalFirstThunk);
    for (int i = 0; names[i] != 0; ++i) {
      if (!IMAGE_SNAP_BY_ORDINAL(names[i]) &&
          function == reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(image + names[i])->Name) {
        auto* const slot = reinterpret_cast<void**>(image + library->FirstThunk) + i;
        DWORD protection = 0;
        VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection);
        return std::exchange(*slot, target);
      }
    }
  }
  throw std::runtime_error("this program does not import " + function);
}

// As long as it lives, calls to an imported function go to `replacement`: a lambda that takes the
// original function and then that function's own parameters.
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

  // Each lambda has a type, and so an `active`, of its own.
  static inline ReplacedImport* active = nullptr;
  const char* function;
  Replacement replacement;
  void* original;
};

template <typename Function, typename Replacement>
ReplacedImport<Function, Replacement> ReplaceImport(const char* function, Replacement replacement) {
  return {function, std::move(replacement)};
}

// Until the end of the block:
// REPLACE(RegDeleteValueW, [](auto original, HKEY key, auto name) { return 5L; });
#define REPLACE(function, ...)    \
  const auto replaced##function = \
      ::kelvo::test::ReplaceImport<decltype(::function)>(#function, __VA_ARGS__)

// As long as what it returns lives, GetVersionExW tells of this Windows, build 1381.
inline auto PretendWindows(DWORD platform, DWORD major, DWORD minor,
                           const wchar_t* servicePack = L"") {
  const auto tell = [=](auto, OSVERSIONINFOW* record) -> BOOL {
    const DWORD size = record->dwOSVersionInfoSize;
    *record = {size, major, minor, 0xABCD0000 + 1381, platform, L""};
    lstrcpyW(record->szCSDVersion, servicePack);
    // NT 4.0 does not know the extended record.
    return major != 4 || size == sizeof(*record);
  };
  return ReplaceImport<decltype(::GetVersionExW)>("GetVersionExW", tell);
}

// Runs `call` while the nth call to a function fails with the error 1234, which it sets or returns,
// or throws; answers whether there was one.
using Call = std::function<void()>;
using Failing = bool (*)(int nth, bool throws, const Call& call);
#define FAILING(function)                                                                          \
  [](int nth, bool throws, const Call& call) {                                                     \
    REPLACE(function, [&](auto original, auto... parameters) {                                     \
      using Result = decltype(original(parameters...));                                            \
      constexpr bool kReturnsIt = sizeof(Result) == sizeof(long) && !std::is_same_v<Result, BOOL>; \
      if (--nth != 0) {                                                                            \
        return original(parameters...);                                                            \
      }                                                                                            \
      SetLastError(1234);                                                                          \
      return throws ? throw 1 : kReturnsIt ? Result(1234) : Result{};                              \
    });                                                                                            \
    call();                                                                                        \
    return nth <= 0;                                                                               \
  }

// As long as it lives, GetProcAddress gives `function` for the export `name` of whatever module;
// null stands for a Windows that does not have it.
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
