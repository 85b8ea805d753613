#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Calls run(context). Returns 1 when `run` returns, 0 when a structured exception leaves `run`.
// `run` must catch all C++ exceptions, since none of them may cross the __except frame.
int RunUnderStructuredGuard(void (*run)(void* context), void* context);

#ifdef __cplusplus
}
#endif
