// torture TARGET SEED SECONDS      tries random input on a target for that long
// torture TARGET --times COUNT     tries it so often
// torture TARGET --input NUMBER    tries the one input again that failed
// torture                          names the targets

#include <windows.h>

#include <filesystem>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>

#include "lib/platform/guarded_call.h"
#include "torture/input.h"

namespace kelvo::torture {

namespace {

constexpr std::uint64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

Target currentTarget{};
std::uint64_t currentInput = 0;
int wineFaults = 0;

void Fail(const std::string& what) {
  std::cout << "FAILED: " << what << "\nBring it back with: scripts/torture \""
            << currentTarget.name << "\" --input " << currentInput << std::endl;
  TerminateProcess(GetCurrentProcess(), 1);
}

// Guarded calls would swallow a fault: it is looked at before they do. One in a library of Wine's
// that is known for it is counted.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  const auto* const record = exception->ExceptionRecord;
  if (record->ExceptionCode != EXCEPTION_ACCESS_VIOLATION &&
      record->ExceptionCode != EXCEPTION_ILLEGAL_INSTRUCTION &&
      record->ExceptionCode != EXCEPTION_STACK_OVERFLOW) {
    return EXCEPTION_CONTINUE_SEARCH;
  }
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      static_cast<const wchar_t*>(record->ExceptionAddress), &module);
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(module, path, MAX_PATH);
  const std::string name = std::filesystem::path(path).stem().string();
  if (!name.empty() && std::string(currentTarget.faultyLibraries).find(name) != std::string::npos) {
    ++wineFaults;
    return EXCEPTION_CONTINUE_SEARCH;
  }
  std::ostringstream what;
  what << "exception " << std::hex << record->ExceptionCode << " at " << name << "+"
       << static_cast<BYTE*>(record->ExceptionAddress) - reinterpret_cast<BYTE*>(module);
  Fail(what.str());
  return EXCEPTION_CONTINUE_SEARCH;
}

void TryInput(const Target& target, std::uint64_t number) {
  currentTarget = target;
  currentInput = number;
  Input input(number);
  const int faultsBefore = wineFaults;
  const bool completed = GuardedCall([&] { target.run(input); });
  Expect(completed || wineFaults != faultsBefore, "an exception left the operation");
}

void Try(const Target& target, std::uint64_t seed, std::uint64_t seconds, std::uint64_t most) {
  // Each seed has inputs of its own.
  constexpr std::uint64_t kInputsOfSeed = 1'000'000'000;
  const ULONGLONG start = GetTickCount64();
  std::uint64_t tried = 0;
  while (tried < most && (GetTickCount64() - start) / 1000 < seconds) {
    TryInput(target, (seed * kInputsOfSeed) + tried++);
  }
  std::cout << target.name << ": " << tried << " inputs, " << wineFaults << " faults of Wine's own"
            << std::endl;
}

std::vector<Target> AllTargets() {
  std::vector<Target> all;
  for (const auto& targets : {StringTargets(), RegistryTargets(), AccessListTargets(),
                              FileTargets(), StatusTargets(), ProcessTargets()}) {
    all.insert(all.end(), targets.begin(), targets.end());
  }
  return all;
}

void Run(const Target& target, const std::string& how, const std::string& number) {
  if (how == "--input") {
    TryInput(target, std::stoull(number));
  } else if (how == "--times") {
    Try(target, 1, kNoEnd, std::stoull(number));
  } else {
    Try(target, std::stoull(how), std::stoull(number), kNoEnd);
  }
}

}  // namespace

void Expect(bool holds, const char* what) {
  if (!holds) {
    Fail(what);
  }
}

}  // namespace kelvo::torture

int main(int count, char** words) {
  namespace torture = kelvo::torture;
  AddVectoredExceptionHandler(1, torture::OnException);
  for (const torture::Target& target : torture::AllTargets()) {
    if (count != 4) {
      std::cout << target.name << "\n";
    } else if (target.name == std::string(words[1])) {
      torture::Run(target, words[2], words[3]);
    }
  }
  return 0;
}
