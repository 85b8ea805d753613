// fuzz                          names the targets
// fuzz TARGET SEED SECONDS      tries random input on a target for that long
// fuzz TARGET --input NUMBER    tries one input again
// What it finds is on standard error: the programs that it starts write to standard output.

#include <windows.h>

#include <iostream>
#include <string>

#include "lib/platform/guarded_call.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

namespace {

const Target* currentTarget = nullptr;
std::uint64_t currentInput = 0;

// Guarded calls would swallow a fault: this sees it before they do.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  const DWORD code = exception->ExceptionRecord->ExceptionCode;
  Expect(code != EXCEPTION_ACCESS_VIOLATION && code != EXCEPTION_ILLEGAL_INSTRUCTION &&
             code != EXCEPTION_STACK_OVERFLOW,
         "there is no fault");
  return EXCEPTION_CONTINUE_SEARCH;
}

void TryInput(std::uint64_t number) {
  currentInput = number;
  Input input(number);
  Expect(GuardedCall([&] { currentTarget->run(input); }), "no exception leaves the operation");
}

void TryFor(std::uint64_t seed, std::uint64_t seconds) {
  // Each seed has inputs of its own.
  constexpr std::uint64_t kInputsOfSeed = 1'000'000'000;
  const ULONGLONG start = GetTickCount64();
  std::uint64_t tried = 0;
  while ((GetTickCount64() - start) / 1000 < seconds) {
    TryInput((seed * kInputsOfSeed) + tried++);
  }
  std::cerr << currentTarget->name << ": " << tried << " inputs\n";
}

}  // namespace

void Expect(bool holds, const char* what) {
  if (!holds) {
    std::cerr << "FAILED: " << what << "\nRepeat it with: scripts/fuzz \"" << currentTarget->name
              << "\" --input " << currentInput << "\n";
    TerminateProcess(GetCurrentProcess(), 1);
  }
}

}  // namespace kelvo::fuzz

int main(int count, char** words) {
  using namespace kelvo::fuzz;
  AddVectoredExceptionHandler(1, OnException);
  for (const Target* const target : Target::all) {
    currentTarget = target;
    if (count != 4) {
      std::cout << target->name << "\n";
    } else if (target->name != std::string(words[1])) {
      continue;
    } else if (words[2] == std::string("--input")) {
      TryInput(std::stoull(words[3]));
      return 0;
    } else {
      TryFor(std::stoull(words[2]), std::stoull(words[3]));
      return 0;
    }
  }
  if (count != 1) {
    std::cerr << "There is no such target.\n";
    return 2;
  }
  return 0;
}
