// An uncaught exception ends the process without a word: nothing is ever written to standard error.

#include <windows.h>

#include <exception>

namespace {

[[noreturn]] void EndProcess() {
  // What abort() would exit with.
  constexpr UINT kAborted = 3;
  TerminateProcess(GetCurrentProcess(), kAborted);
  for (;;) {
  }
}

}  // namespace

#ifdef __GLIBCXX__
namespace __gnu_cxx {

// Takes the place of libstdc++'s own handler, which would write to standard error and bring 45 KiB
// of name demangling into the program.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-*): the name is libstdc++'s
void __verbose_terminate_handler() { EndProcess(); }

}  // namespace __gnu_cxx
#else
namespace {
const std::terminate_handler replacedHandler = std::set_terminate(EndProcess);
}
#endif
