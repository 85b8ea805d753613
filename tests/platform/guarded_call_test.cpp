#include "lib/platform/guarded_call.h"

#include "lib/platform/module.h"
#include "tests/support/testing.h"

TEST_CASE("GuardedCall: returns whether the action completed") {
  bool reached = false;
  CHECK_BOTH(GuardedCall([&] { reached = true; }), reached);
  CHECK_FALSE(GuardedCall([] { throw 1; }));
  CHECK_FALSE(GuardedCall([] { *static_cast<volatile int*>(nullptr) = 1; }));
  CHECK_FALSE(GuardedCall([] { RaiseException(STATUS_INTEGER_DIVIDE_BY_ZERO, 0, 0, nullptr); }));
}

TEST_CASE("Owned::Receive: empties the object; FindFunction: accepts a null module") {
  OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  CHECK(*event.Receive() == nullptr);
  SetLastError(ERROR_BAD_EXE_FORMAT);
  CHECK((FindFunction<void()>(nullptr, "Sleep") == nullptr));
  CHECK(GetLastError() == ERROR_BAD_EXE_FORMAT);
}
