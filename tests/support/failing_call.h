#pragma once

#include <windows.h>

#include <functional>

#include "tests/support/replaced_import.h"

namespace kelvo::test {

constexpr DWORD kFailure = 1234;

// A Windows function that tests can cause to fail. `run` calls `action`. During `action`, the
// nth call of the function throws an exception if `throws` is true, and otherwise fails with the
// error code kFailure. `run` returns whether there was an nth call.
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
