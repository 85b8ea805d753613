#pragma once

#include <string>

// A program's command line, or calls to the library. The test makes function calls in an operation
// fail, one call per run. Before each run, the test reloads fault_injection_operations.dll, so that
// no old state remains. The DLL exports the array "operations". The last element has a null `name`.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
