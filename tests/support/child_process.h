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

// Runs a command line to its end; returns the whole exit code and what it wrote, byte for byte.
// With `program`, a path, that file is run, whatever the command line names: Windows would look for
// its first word in this test program's own folder before the current one. `access` is what the
// child may do with its output.
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
  // Under load Wine now and then fails a start with ERROR_INTERNAL_ERROR.
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

// A folder with sorrel.exe, the simulator's libraries and certificates, the current one while this
// lives, and further copies: the path in the folder of this test program, then in the new folder.
struct ProgramFolder : ScratchFolder {
  ProgramFolder(std::initializer_list<std::pair<const wchar_t*, const wchar_t*>> further) {
    for (const wchar_t* const file :
         {L"sorrel.exe", L"simulator\\bthprops.cpl", L"simulator\\difxapi.dll",
          L"certificates\\binary.cer", L"certificates\\base64.cer", L"certificates\\bundle.p7b"}) {
      Copy(file, std::filesystem::path(file).filename());
    }
    for (const auto& [file, name] : further) {
      std::filesystem::create_directories((path / name).parent_path());
      Copy(file, name);
    }
    std::filesystem::current_path(path / "");
  }
  ~ProgramFolder() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs a command line whose first word is a program in this folder.
  static ChildResult Run(const std::wstring& commandLine) {
    const std::filesystem::path program = commandLine.substr(0, commandLine.find(L' '));
    return RunChild(commandLine, absolute(program).c_str());
  }

  void Copy(const wchar_t* file, const std::filesystem::path& name) const {
    std::filesystem::copy_file(ProgramPath(file), path / name);
  }
};

}  // namespace kelvo::test
