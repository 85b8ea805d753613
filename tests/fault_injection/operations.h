#pragma once

#include <string>

// What fault injection runs. The library fault_injection_operations.dll exports the table
// "operations", whose last row has no name; loaded anew for each run, it has forgotten the run
// before.
struct Operation {
  const char* name;
  // The applications that are recorded before it runs.
  const wchar_t* list;
  // Returns what came of it: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
