#pragma once

#include <string>

// The test causes function calls inside an operation to fail. fault_injection_operations.dll
// exports the table "operations", whose last row has no name. The test loads this DLL anew for each
// run, so that no state of an earlier run is left.
struct Operation {
  const char* name;
  // The list of applications in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
