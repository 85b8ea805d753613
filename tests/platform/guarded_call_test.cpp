#include "lib/platform/guarded_call.h"

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("a guarded call answers whether its action came to an end") {
  bool reached = false;
  CHECK(GuardedCall([&] { reached = true; }));
  CHECK(reached);
  CHECK_FALSE(GuardedCall([] { throw 1; }));
  CHECK_FALSE(GuardedCall([] { *static_cast<volatile int*>(nullptr) = 1; }));
  CHECK_FALSE(GuardedCall([] { RaiseException(STATUS_INTEGER_DIVIDE_BY_ZERO, 0, 0, nullptr); }));
}

}  // namespace kelvo
