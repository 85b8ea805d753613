#pragma once

#include <string>

// The test makes the function calls in each operation fail, one call per run. Before each run, the
// test reloads fault_injection_operations.dll, so that no state remains from an earlier run. The
// DLL exports the array "operations". In the array's last element, `name` is null.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
