#include "lib/platform/guarded_call.h"

#include "tests/support/testing.h"

TEST_CASE("a guarded call answers whether its action came to an end") {
  bool reached = false;
  CHECK_BOTH(GuardedCall([&] { reached = true; }), reached);
  CHECK_FALSE(GuardedCall([] { throw 1; }));
  CHECK_FALSE(GuardedCall([] { *static_cast<volatile int*>(nullptr) = 1; }));
  CHECK_FALSE(GuardedCall([] { RaiseException(STATUS_INTEGER_DIVIDE_BY_ZERO, 0, 0, nullptr); }));
}
