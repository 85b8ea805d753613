#pragma once

#include <type_traits>

namespace kelvo::internal {

bool RunGuarded(void (*run)(void* context), void* context);

// Calls `action` and returns true when it came to its end. Any C++ exception and any structured
// exception (a page fault, say) that leaves it is swallowed and answered with false. A structured
// exception skips the destructors between the fault and this call: what `action` owned by then
// stays open, so keep owners outside and let the action only use them.
template <typename Action>
bool GuardedCall(Action&& action) {
  using Plain = std::remove_reference_t<Action>;
  return RunGuarded([](void* context) { (*static_cast<Plain*>(context))(); }, &action);
}

// What `steps` answers, or `failure` when an exception ends them; the same care for owners.
template <typename Answer, typename Steps>
Answer GuardedAnswer(Answer failure, Steps&& steps) {
  Answer answer = failure;
  GuardedCall([&] { answer = steps(); });
  return answer;
}

}  // namespace kelvo::internal
