#pragma once

#include <windows.h>

#include <functional>

#include "tests/support/replaced_import.h"

namespace kelvo::test {

// The error code of a call that is made to fail.
constexpr DWORD kFailure = 1234;

// A function that a test can make fail. `run(nth, throws, action)` runs `action`, in which the nth
// call of the function fails, or throws if `throws` is true. Returns whether there was an nth call.
struct FailingCall {
  const char* function;
  bool (*run)(int nth, bool throws, const std::function<void()>& action);
};

// Macros for rows of a table. SETS_LAST_ERROR is for a function that, on failure, returns null or
// FALSE and sets the last error. RETURNS_ERROR is for a function that returns the error code:
//   constexpr FailingCall kFailing[] = {SETS_LAST_ERROR(GetAce), RETURNS_ERROR(GetSecurityInfo)};
#define SETS_LAST_ERROR(called) KELVO_FAILING_CALL(called, SetLastError(kFailure), 0)
#define RETURNS_ERROR(called) KELVO_FAILING_CALL(called, void(), kFailure)

#define KELVO_FAILING_CALL(called, report, result)                           \
  FailingCall {                                                              \
    #called, [](int nth, bool throws, const std::function<void()>& action) { \
      REPLACE(called, [&](auto original, auto... parameters) {               \
        using Result = decltype(original(parameters...));                    \
        if (--nth != 0) {                                                    \
          return original(parameters...);                                    \
        }                                                                    \
        report;                                                              \
        return throws ? throw 1 : (Result)(result);                          \
      });                                                                    \
      action();                                                              \
      return nth <= 0;                                                       \
    }                                                                        \
  }

}  // namespace kelvo::test
