// fuzz                         lists the targets: the operations that it can try
// fuzz TARGET NUMBER SECONDS   tries inputs on a target for SECONDS, starting with input NUMBER
// Results go to standard error, because one target runs sorrel.exe, which uses standard output.

#include <windows.h>

#include <iostream>
#include <string>

#include "lib/platform/guarded_call.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

static const Target* currentTarget = nullptr;
static std::uint64_t currentInput = 0;

void Expect(bool holds, const char* what) {
  if (!holds) {
    std::cerr << "FAILED: expected that " << what << "\nRepeat with: scripts/fuzz \""
              << currentTarget->name << "\" " << currentInput << "\n";
    TerminateProcess(GetCurrentProcess(), 1);
  }
}

}  // namespace kelvo::fuzz

using namespace kelvo;
using namespace kelvo::fuzz;

// Reports a fault, such as an access violation, before GuardedCall can catch it.
static LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  const DWORD code = exception->ExceptionRecord->ExceptionCode;
  Expect(code != EXCEPTION_ACCESS_VIOLATION && code != EXCEPTION_ILLEGAL_INSTRUCTION &&
             code != EXCEPTION_STACK_OVERFLOW,
         "no fault occurs");
  return EXCEPTION_CONTINUE_SEARCH;
}

int main(int count, char** arguments) {
  AddVectoredExceptionHandler(1, OnException);
  for (const Target* const target : Target::all) {
    if (count != 4) {
      std::cout << target->name << "\n";
    } else if (target->name == std::string(arguments[1])) {
      currentTarget = target;
      const std::uint64_t first = std::stoull(arguments[2]);
      const ULONGLONG end = GetTickCount64() + std::stoull(arguments[3]) * 1000;
      for (currentInput = first; currentInput == first || GetTickCount64() < end; ++currentInput) {
        Input input(currentInput);
        Expect(GuardedCall([&] { target->run(input); }), "no exception leaves the operation");
      }
      std::cerr << target->name << ": " << currentInput - first << " inputs\n";
      return 0;
    }
  }
  if (count == 1) {
    return 0;
  }
  std::cerr << "No target has this name, or the number of arguments is not 3.\n";
  return 2;
}
