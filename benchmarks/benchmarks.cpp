// Measures as ratios within one run: twice the input should take twice the time, and the program
// should start about as fast as an empty one.

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>

#include "lib/platform/owned.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/string_tokenizer.h"

namespace {

using kelvo::WString;

constexpr int kRuns = 15;

// The shortest of several runs, which is the least disturbed one, in seconds.
template <typename Action>
double Shortest(Action action) {
  double shortest = std::numeric_limits<double>::max();
  for (int run = 0; run < kRuns; ++run) {
    const auto start = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    shortest = std::min(shortest, elapsed.count());
  }
  return shortest;
}

// What twice the input costs; linear work gives 2.
template <typename Action>
void PrintGrowth(const char* name, Action action) {
  constexpr int kInputs = 100'000;
  const double base = Shortest([&] { action(kInputs); });
  const double twice = Shortest([&] { action(2 * kInputs); });
  std::printf("%-52s %6.2f\n", name, twice / base);
}

void Walk(const std::wstring& list, bool collapse) {
  kelvo::StringTokenizer tokens(WString(list), L";", collapse);
  while (tokens.HasMoreTokens()) {
    tokens.NextToken();
  }
}

std::wstring Repeated(const wchar_t* text, int times) {
  std::wstring all;
  for (int i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}

void Start(const std::filesystem::path& program) {
  std::wstring commandLine = L"\"" + program.wstring() + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &started) != FALSE) {
    const kelvo::OwnedKernelObject process(started.hProcess);
    const kelvo::OwnedKernelObject thread(started.hThread);
    WaitForSingleObject(process.get(), INFINITE);
  }
}

}  // namespace

extern "C" int wmain(int /*argc*/, wchar_t** argv) {
  PrintGrowth("StringTokenizer, twice the items",
              [](int items) { Walk(Repeated(L"brindle;", items), true); });
  PrintGrowth("StringTokenizer, a delimiter run of twice the length",
              [](int items) { Walk(Repeated(L";;;;;;;;", items), true); });
  PrintGrowth("CompareNoCase, twice the length", [](int items) {
    const std::wstring text = Repeated(L"Brindle\u0416", items);
    kelvo::CompareNoCase(text.c_str(), text.c_str());
  });

  const std::filesystem::path folder = std::filesystem::absolute(argv[0]).parent_path();
  Start(folder / "empty_program.exe");
  const double empty = Shortest([&] { Start(folder / "empty_program.exe"); });
  const double usage = Shortest([&] { Start(folder / "sorrel.exe"); });
  std::printf("%-52s %6.2f\n", "start of sorrel.exe to that of an empty program", usage / empty);
  return 0;
}
