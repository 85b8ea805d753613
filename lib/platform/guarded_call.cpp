#include "lib/platform/guarded_call.h"

#include "lib/platform/internal/structured_guard.h"

namespace kelvo::internal {

namespace {

struct Call {
  void (*run)(const void* context) = nullptr;
  const void* context = nullptr;
  bool completed = false;
};

}  // namespace

bool RunGuarded(void (*run)(const void* context), const void* context) {
  Call call{.run = run, .context = context};
  const int returned = RunUnderStructuredGuard(
      [](void* opaque) {
        auto* inner = static_cast<Call*>(opaque);
        try {
          inner->run(inner->context);
          inner->completed = true;
        } catch (...) {
          inner->completed = false;
        }
      },
      &call);
  return returned != 0 && call.completed;
}

}  // namespace kelvo::internal
