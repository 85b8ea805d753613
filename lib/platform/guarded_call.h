#pragma once

namespace kelvo {

namespace internal {
bool RunGuarded(void (*run)(const void* context), const void* context);
}  // namespace internal

// Calls `action` and returns true when it returned. A C++ exception or a structured exception (a
// page fault, say) that leaves it is swallowed, and false returned. A structured exception skips
// the destructors between the fault and this call, so whatever owns a resource stays outside of
// `action`, which only uses it.
template <typename Action>
bool GuardedCall(const Action& action) {
  return internal::RunGuarded([](const void* context) { (*static_cast<const Action*>(context))(); },
                              &action);
}

// Returns what `steps` returns, or `failure` when an exception ends them. Owners stay outside, as
// with GuardedCall.
template <typename Answer, typename Steps>
Answer GuardedAnswer(Answer failure, const Steps& steps) {
  Answer answer = failure;
  GuardedCall([&] { answer = steps(); });
  return answer;
}

}  // namespace kelvo
