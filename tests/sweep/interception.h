#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <type_traits>
#include <utility>

#include "tests/support/failing_call.h"
#include "tests/support/shown_arguments.h"

namespace kelvo::test {

// Stands between a module and Windows: counts the calls of each function in a table, makes one call
// fail, and keeps a book of what is open.
struct Interception {
  std::map<std::string, void*> originals;
  std::map<std::string, int> calls;
  // Each call with its arguments, in order.
  std::string transcript;
  // The function whose call of this number, counted from 1, fails, or ends the thread before it.
  std::pair<std::string, int> chosen;
  bool ends = false;
  // What is open, with the function that opened it.
  std::map<const void*, std::string> open;
};
inline Interception interception;

// A row of the table: a function of Windows, and what is called in its place.
struct Watched {
  const char* name;
  void* instead;
};

// Of what neither opens nor closes, the arguments may vary from machine to machine.
enum class Handles { kNone, kVaries, kOpens, kCloses };

// An argument that points to a handle, or a result that is one.
template <typename Value>
const void* OpenedHandle([[maybe_unused]] Value value, bool isResult) {
  if constexpr (std::is_pointer_v<Value> && !std::is_function_v<std::remove_pointer_t<Value>>) {
    using Target = std::remove_pointer_t<Value>;
    if (isResult) {
      return value;
    }
    if constexpr (std::is_pointer_v<Target> && !std::is_const_v<Target>) {
      return value != nullptr ? *value : nullptr;
    }
  }
  return nullptr;
}

// `failure` is what the function returns to say that it failed; 0 besides a last error.
template <typename Function, typename... Given>
auto Intercept(const char* name, long long failure, Handles handles, Given... given) {
  using Result = std::invoke_result_t<Function, Given...>;
  auto& [originals, calls, transcript, chosen, ends, open] = interception;
  const bool fails = chosen == std::pair<std::string, int>(name, ++calls[name]);
  // The C runtime's own calls are not Windows'.
  if (std::isupper(*name) != 0) {
    transcript += (handles == Handles::kVaries ? name : ShownCall(name, given...)) + "\r\n";
  }
  if (fails && ends) {
    ExitThread(0);
  }
  if (fails && handles != Handles::kCloses) {
    SetLastError(kFailure);
    return (Result)failure;
  }
  if (handles == Handles::kCloses) {
    (open.erase((const void*)(ULONG_PTR)given), ...);
  }
  const Result result = reinterpret_cast<Function>(originals[name])(given...);
  const bool succeeded = failure == kFailure ? !result : result != (Result)failure;
  if (handles == Handles::kOpens && succeeded) {
    for (const void* handle : {OpenedHandle(given, false)..., OpenedHandle(result, true)}) {
      open.try_emplace(handle, name);
    }
    open.erase(nullptr);
  }
  if (handles == Handles::kCloses) {
    // Hides what an earlier call said, unless that was read first.
    SetLastError(fails ? kFailure : ERROR_SUCCESS);
  }
  return fails ? (Result)failure : result;
}

#define WATCH(function, failure, handles)                                                     \
  Watched {                                                                                   \
    #function, reinterpret_cast<void*>(static_cast<decltype(&::function)>([](auto... given) { \
      return Intercept<decltype(&::function)>(#function, failure, handles, given...);         \
    }))                                                                                       \
  }

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
