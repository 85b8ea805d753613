#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Calls run(context) in a __try block. Returns 1 when `run` returns, and 0 when a structured
// exception leaves `run`. `run` must catch all C++ exceptions.
int RunUnderStructuredGuard(void (*run)(void* context), void* context);

#ifdef __cplusplus
}
#endif
