#pragma once

#include <string>

// Runs one command line of a program in the test's process, or calls the library. In each run, at
// most one call to a function in watched.def fails. Before each run, the test loads this DLL anew.
// The DLL exports the array "operations". Its last element's `name` is null.
struct Operation {
  const char* name;
  // The list of applications that the test stores in the registry before the operation runs.
  const wchar_t* list;
  // Returns the outcome: an exit code, a value, or "an exception".
  std::wstring (*run)();
};
