#pragma once

namespace kelvo {

namespace internal {
bool RunGuarded(void (*run)(const void* context), const void* context);
}  // namespace internal

// Calls `action`. Returns true when `action` returns. When a C++ or structured exception (such as
// an access violation) leaves `action`, swallows the exception and returns false. After a
// structured exception, the destructors of local objects in `action`, and in the functions that
// `action` calls, do not run. If an object's destructor must run, create the object outside
// `action`.
template <typename Action>
bool GuardedCall(const Action& action) {
  return internal::RunGuarded([](const void* context) { (*static_cast<const Action*>(context))(); },
                              &action);
}

// Calls `steps` and returns its result, or `failure` when a C++ or structured exception leaves
// `steps`. If an object's destructor must run, create the object outside `steps` (see GuardedCall).
template <typename Answer, typename Steps>
Answer GuardedAnswer(Answer failure, const Steps& steps) {
  Answer answer = failure;
  GuardedCall([&] { answer = steps(); });
  return answer;
}

}  // namespace kelvo
