#include "lib/platform/internal/structured_guard.h"

#include <excpt.h>

int RunUnderStructuredGuard(void (*run)(void* context), void* context) {
  __try {
    run(context);
    return 1;
  } __except (EXCEPTION_EXECUTE_HANDLER) {
    return 0;
  }
}
