#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Calls run(context). Returns 1 when it returns, 0 when a structured exception leaves it. A C++
// exception must not leave `run`, since it must not cross the __except frame.
int RunUnderStructuredGuard(void (*run)(void* context), void* context);

#ifdef __cplusplus
}
#endif
