#pragma once

#include <string>

// Handles a program's command line or calls the library. In each run, the test makes at most one of
// the operation's calls fail. Before each run, the test reloads fault_injection_operations.dll to
// reset the DLL's state. The DLL exports the array "operations". Its last element's `name` is null.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
