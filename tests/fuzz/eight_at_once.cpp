// Runs sorrel.exe 8 times at once. The last writer wins; the application list stays well-formed.

#include <process.h>

#include <algorithm>

#include "tests/fuzz/input.h"
#include "tests/support/throw_away_prefix.h"
#include "tool/dependent_applications.h"

namespace kelvo::fuzz {

static std::intptr_t Start(const wchar_t* form, const wchar_t* name) {
  std::intptr_t process = -1;
  // Under load, Wine sometimes fails to start a program.
  for (DWORD tries = 0; process == -1; ++tries) {
    Expect(tries < 10, "the program starts");
    Sleep(100 * tries);
    process = _wspawnl(_P_NOWAIT, L"sorrel.exe", L"sorrel.exe", form, name, nullptr);
  }
  return process;
}

// Waits for processes to end. Checks the application list and returns it.
static std::wstring ListAfter(const std::vector<std::intptr_t>& processes) {
  for (const std::intptr_t process : processes) {
    int code = -1;
    _cwait(&code, process, 0);
    Expect(code == 0, "the exit code is 0");
  }
  const WString list = ReadApplicationList();
  Expect(list.empty() || (L";" + list + L";").find(L";;") == WString::npos,
         "the list has no stray separator");
  std::vector<WString> names = ApplicationsInList(list);
  std::ranges::sort(names);
  Expect(std::ranges::adjacent_find(names) == names.end(), "the list has no name twice");
  return std::wstring(list);
}

static const Target kEightAtOnce("eight at once", [](Input& input) {
  test::RequireThrowAwayPrefix();
  std::vector<std::intptr_t> processes;
  for (const wchar_t* const name :
       {L"ant", L"bee", L"cat", L"dog", L"eel", L"fox", L"gnu", L"hen"}) {
    processes.push_back(Start(input.Chance() ? L"register" : L"unregister", name));
  }
  ListAfter(processes);
  Expect(ListAfter({Start(L"register", L"owl")}).ends_with(L"owl"), "the next run adds owl");
  ListAfter({Start(L"unregister", L"owl")});
});

}  // namespace kelvo::fuzz
