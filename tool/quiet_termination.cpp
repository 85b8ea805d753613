// Ends the process silently when an exception is not caught, because the program must not write
// anything to standard error in that case.

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

// Replaces libstdc++'s own handler. That handler would write to standard error, and its code for
// name demangling would add 45 KiB to the program.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-*): libstdc++ prescribes the name
void __verbose_terminate_handler() { EndProcess(); }

}  // namespace __gnu_cxx
#else
namespace {
const std::terminate_handler replacedHandler = std::set_terminate(EndProcess);
}
#endif
