#pragma once

namespace kelvo {

namespace internal {
bool RunGuarded(void (*run)(const void* context), const void* context);
}  // namespace internal

// Calls `action` and returns true when it returns. Swallows a C++ or structured exception, such as
// an access violation, that leaves `action`, and returns false. A structured exception skips the
// destructors between the fault and this call: keep owners of resources outside `action`, which
// only uses them.
template <typename Action>
bool GuardedCall(const Action& action) {
  return internal::RunGuarded([](const void* context) { (*static_cast<const Action*>(context))(); },
                              &action);
}

// Returns what `steps` returns, or `failure` when a C++ or structured exception leaves it. Keep
// owners outside `steps`, as with GuardedCall.
template <typename Answer, typename Steps>
Answer GuardedAnswer(Answer failure, const Steps& steps) {
  Answer answer = failure;
  GuardedCall([&] { answer = steps(); });
  return answer;
}

}  // namespace kelvo
