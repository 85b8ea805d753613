// Makes an uncaught exception end the process silently: nothing may be written to standard error.

#include <windows.h>

#include <exception>

namespace {

[[noreturn]] void EndProcess() {
  // The exit code of abort().
  constexpr UINT kAborted = 3;
  TerminateProcess(GetCurrentProcess(), kAborted);
  for (;;) {
  }
}

}  // namespace

#ifdef __GLIBCXX__
namespace __gnu_cxx {

// Replaces libstdc++'s own handler, which would write to standard error and add 45 KiB of code for
// name demangling to the program.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-*): the name is libstdc++'s
void __verbose_terminate_handler() { EndProcess(); }

}  // namespace __gnu_cxx
#else
namespace {
const std::terminate_handler replacedHandler = std::set_terminate(EndProcess);
}
#endif
