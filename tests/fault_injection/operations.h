#pragma once

#include <string>

// Runs a program's command line, or calls the library. In each run, the test makes at most one of
// the operation's function calls fail. Before each run, it reloads fault_injection_operations.dll
// to reset its state. This DLL exports the array "operations". The last element has a null `name`.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
