#pragma once

#include <string>

// The test runs each operation and makes its calls fail. fault_injection_operations.dll exports the
// operations as the array "operations". In the last element, `name` is null. The test reloads this
// DLL for each run, so that no state of an earlier run is left.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
