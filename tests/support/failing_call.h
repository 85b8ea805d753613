#pragma once

#include <windows.h>

#include <functional>

#include "tests/support/replaced_import.h"

namespace kelvo::test {

// The error of every call that is made to fail.
constexpr DWORD kFailure = 1234;

// A function whose calls can be made to fail. `run(nth, throws, action)` runs `action` and makes
// the nth call to the function fail or throw. Returns whether there was an nth call.
struct FailingCall {
  const char* function;
  bool (*run)(int nth, bool throws, const std::function<void()>& action);
};

// Rows of a table. A function reports failure by a null or FALSE result and the last error, or it
// returns the error:
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
