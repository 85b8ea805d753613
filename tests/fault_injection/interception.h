#pragma once

#include <windows.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/failing_call.h"
#include "tests/support/shown_arguments.h"

namespace kelvo::test {

// Whether a function opens or closes handles. kNone and kLeftOut: neither. calls.txt omits kCloses
// functions, and kLeftOut functions: their arguments vary, or fault_injection.txt shows the effect.
enum class Handles { kNone, kLeftOut, kOpens, kCloses };

// A function in watched.def and its replacement.
struct Watched {
  const char* name;
  void* instead;
  bool closes;
};

// The data of Intercept. Intercept counts a module's calls to each function in watched.def, makes
// one call fail, and records open handles and unfreed memory.
struct Interception {
  std::map<std::string, void*> originals;
  std::map<std::string, int> calls;
  // The distinct calls for calls.txt, as text: only calls with a string or a nonzero number.
  std::set<std::string> shown;
  // The call that fails: the function, and which call of that function (1 is the first).
  std::pair<std::string, int> chosen;
  bool ends = false;  // the chosen call ends the thread instead of failing
  // Open handles and unfreed memory, each with the function it came from and those that release it.
  std::map<const void*, std::pair<std::string, std::string_view>> open;
};
inline Interception interception;

// Returns the handles that an argument points to.
template <typename Argument>
std::vector<const void*> HandlesAt(Argument) {
  return {};
}
template <typename Target>
std::vector<const void*> HandlesAt(Target** place) {
  return {place != nullptr ? reinterpret_cast<const void*>(*place) : nullptr};
}
inline std::vector<const void*> HandlesAt(PROCESS_INFORMATION* started) {
  return {started->hProcess, started->hThread};
}

// `failure` is the function's return value on failure, or kFailure if the function returns an error
// code. If the function opens handles, `closers` names the functions that close these handles.
template <typename Function, typename... Given>
auto Intercept(const char* name, long long failure, Handles handles, std::string_view closers,
               Given... given) {
  using Result = std::invoke_result_t<Function, Given...>;
  auto& [originals, calls, shown, chosen, ends, open] = interception;
  const bool fails = chosen == std::pair<std::string, int>(name, ++calls[name]);
  const bool closes = handles == Handles::kCloses;
  // calls.txt also omits C runtime functions. Their names begin with a lower-case letter or "_".
  const bool isShown = std::isupper(*name) != 0 && !closes && handles != Handles::kLeftOut;
  const std::string call = isShown ? ShownCall(name, given...) : "";
  if (call.find_first_of("123456789'") != std::string::npos) {
    shown.insert(call);
  }
  if (fails && ends) {
    ExitThread(1);
  }
  if (fails && !closes) {
    SetLastError(kFailure);
    return (Result)failure;
  }
  if (closes) {
    // A handle stays in `open` if the wrong function closes it.
    std::erase_if(open, [&](const auto& row) {
      return row.second.second.find(name) != std::string_view::npos &&
             ((row.first == (const void*)(ULONG_PTR)given) || ...);
    });
  }
  Result result = reinterpret_cast<Function>(originals[name])(given...);
  const bool succeeded = failure == kFailure ? !result : result != (Result)failure;
  if (handles == Handles::kOpens && succeeded) {
    for (const auto& opened : {HandlesAt(given)..., HandlesAt(&result)}) {
      for (const void* handle : opened) {
        open.try_emplace(handle, name, closers);
      }
    }
    open.erase(nullptr);
  }
  if (closes) {
    // Overwrites the last error, to detect code that reads it only after closing a handle.
    SetLastError(fails ? kFailure : ERROR_SUCCESS);
  }
  return fails ? (Result)failure : result;
}

// Makes a `Watched` for each function: WATCH(failure, handles, closers, function, ...).
#define WATCH(...) KELVO_64(KELVO_WATCH(__VA_ARGS__))
#define KELVO_WATCH(failure, handles, closers, function, ...)                                    \
  Watched{                                                                                       \
      #function, reinterpret_cast<void*>(static_cast<decltype(&::function)>([](auto... given) {  \
        return Intercept<decltype(&::function)>(#function, failure, handles, closers, given...); \
      })),                                                                                       \
      (handles) == kCloses} __VA_OPT__(, KELVO_WATCH_NEXT KELVO_NONE(failure, handles, closers,  \
                                                                     __VA_ARGS__))
// A macro is not expanded within itself. KELVO_64 forces more scans, and each adds one `Watched`.
#define KELVO_WATCH_NEXT() KELVO_WATCH
#define KELVO_NONE ()
#define KELVO_64(...) KELVO_16(KELVO_16(KELVO_16(KELVO_16(__VA_ARGS__))))
#define KELVO_16(...) KELVO_4(KELVO_4(KELVO_4(KELVO_4(__VA_ARGS__))))
#define KELVO_4(...) KELVO_1(KELVO_1(KELVO_1(KELVO_1(__VA_ARGS__))))
#define KELVO_1(...) __VA_ARGS__

// Redirects a module's imports to their replacements in the table.
template <typename Table>
void WatchImports(HMODULE module, const Table& table) {
  for (const Watched& watched : table) {
    try {
      interception.originals[watched.name] = SwapImport(watched.name, watched.instead, module);
    } catch (const std::runtime_error&) {
      // The module gets this function from GetProcAddress, or does not use it.
    }
  }
}

}  // namespace kelvo::test
