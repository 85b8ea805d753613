#pragma once

#include <windows.h>

#include <string>

namespace kelvo::test {

struct ChildResult {
  DWORD exitCode = 0;
  std::string output;
  std::string errors;
};

// The path of a program of the project's, which all stand in one folder.
std::wstring ProgramPath(const std::wstring& name);

// Runs a command line to its end and returns the whole exit code and what it wrote to standard
// output and to standard error, byte by byte. Throws std::runtime_error when the program does not
// start.
ChildResult RunChild(std::wstring commandLine);

}  // namespace kelvo::test
