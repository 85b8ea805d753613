#pragma once

#include <windows.h>

#include <doctest.h>
#include <string>

#include "lib/platform/owned.h"
#include "tests/support/files.h"

namespace kelvo::test {

struct ChildResult {
  DWORD exitCode = 0;
  std::string output, errors;
};

// Runs `program` with a command line, waits until the process ends, and returns the exit code and
// the output. If `program` is null, Windows searches for the program that the command line names,
// first in this test program's folder. `access` is the access mask of the child's output handles.
inline ChildResult RunChild(std::wstring commandLine, const wchar_t* program = nullptr,
                            DWORD access = GENERIC_WRITE) {
  const ScratchFolder folder;
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  const auto create = [&](const char* name) {
    return OwnedFile(CreateFileW((folder / name).c_str(), access, FILE_SHARE_READ, &inherited,
                                 CREATE_ALWAYS, 0, nullptr));
  };
  const OwnedFile output = create("output");
  const OwnedFile errors = create("errors");
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output.get();
  startup.hStdError = errors.get();
  PROCESS_INFORMATION started{};
  // Tries again, because under load Wine sometimes cannot start a process (ERROR_INTERNAL_ERROR).
  for (DWORD pause = 0; CreateProcessW(program, commandLine.data(), nullptr, nullptr, TRUE, 0,
                                       nullptr, nullptr, &startup, &started) == FALSE;
       Sleep(pause += 50)) {
    REQUIRE(pause < 500);
  }
  const OwnedKernelObject process(started.hProcess);
  const OwnedKernelObject thread(started.hThread);
  WaitForSingleObject(process.get(), INFINITE);
  DWORD exitCode = 0;
  GetExitCodeProcess(process.get(), &exitCode);
  return {exitCode, ReadBytes(folder / "output"), ReadBytes(folder / "errors")};
}

}  // namespace kelvo::test
