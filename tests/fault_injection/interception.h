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

// What a function does with handles. Of one that is kLeftOut the arguments are not shown: they vary
// from machine to machine, or their effect shows them.
enum class Handles { kNone, kLeftOut, kOpens, kCloses };

// A row of the table: a function of Windows, and what is called in its place.
struct Watched {
  const char* name;
  void* instead;
  bool closes;
};

// Comes between a module and Windows: counts the calls of each function in a table, makes one call
// fail, and keeps a book of what is open.
struct Interception {
  std::map<std::string, void*> originals;
  std::map<std::string, int> calls;
  // The distinct calls with their arguments, where these say anything.
  std::set<std::string> shown;
  // The function whose call of this number, counted from 1, fails, or ends the thread before it.
  std::pair<std::string, int> chosen;
  bool ends = false;
  // What is open, with the function that opened it and those that close it.
  std::map<const void*, std::pair<std::string, std::string_view>> open;
};
inline Interception interception;

// The handles that an argument points to.
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

// `failure` is what the function returns to say that it failed; 0 when it sets the last error.
// `closers` names the functions that close what it opens.
template <typename Function, typename... Given>
auto Intercept(const char* name, long long failure, Handles handles, std::string_view closers,
               Given... given) {
  using Result = std::invoke_result_t<Function, Given...>;
  auto& [originals, calls, shown, chosen, ends, open] = interception;
  const bool fails = chosen == std::pair<std::string, int>(name, ++calls[name]);
  const bool closes = handles == Handles::kCloses;
  // The C runtime's own calls are not Windows'.
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
    // What another function should have closed stays in the book.
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
    // Hides what an earlier call said, unless that was read first.
    SetLastError(fails ? kFailure : ERROR_SUCCESS);
  }
  return fails ? (Result)failure : result;
}

// Rows for functions that fail in the same way: WATCH(failure, handles, closers, function, ...).
#define WATCH(...) KELVO_64(KELVO_WATCH(__VA_ARGS__))
#define KELVO_WATCH(failure, handles, closers, function, ...)                                    \
  Watched{                                                                                       \
      #function, reinterpret_cast<void*>(static_cast<decltype(&::function)>([](auto... given) {  \
        return Intercept<decltype(&::function)>(#function, failure, handles, closers, given...); \
      })),                                                                                       \
      (handles) == kCloses} __VA_OPT__(, KELVO_WATCH_NEXT KELVO_NONE(failure, handles, closers,  \
                                                                     __VA_ARGS__))
// A macro is not expanded within itself: each pass over the rest takes one function off.
#define KELVO_WATCH_NEXT() KELVO_WATCH
#define KELVO_NONE ()
#define KELVO_64(...) KELVO_16(KELVO_16(KELVO_16(KELVO_16(__VA_ARGS__))))
#define KELVO_16(...) KELVO_4(KELVO_4(KELVO_4(KELVO_4(__VA_ARGS__))))
#define KELVO_4(...) KELVO_1(KELVO_1(KELVO_1(KELVO_1(__VA_ARGS__))))
#define KELVO_1(...) __VA_ARGS__

// Directs a module's imports to the table.
template <typename Table>
void WatchImports(HMODULE module, const Table& table) {
  for (const Watched& watched : table) {
    try {
      interception.originals[watched.name] = SwapImport(watched.name, watched.instead, module);
    } catch (const std::runtime_error&) {
      // It is looked up at run time, or not used.
    }
  }
}

}  // namespace kelvo::test
