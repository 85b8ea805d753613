#pragma once

namespace kelvo {

namespace internal {
bool RunGuarded(void (*run)(const void* context), const void* context);
}  // namespace internal

// Calls `action` and returns true when it returns. When a C++ exception or a structured exception,
// such as a page fault, leaves it, the exception is swallowed and false is returned. A structured
// exception skips the destructors between the fault and this call: keep whatever owns a resource
// outside of `action`, which only uses it.
template <typename Action>
bool GuardedCall(const Action& action) {
  return internal::RunGuarded([](const void* context) { (*static_cast<const Action*>(context))(); },
                              &action);
}

// Returns what `steps` returns, or `failure` when a C++ or structured exception ends it. Keep
// owners outside of `steps`, as with GuardedCall.
template <typename Answer, typename Steps>
Answer GuardedAnswer(Answer failure, const Steps& steps) {
  Answer answer = failure;
  GuardedCall([&] { answer = steps(); });
  return answer;
}

}  // namespace kelvo
