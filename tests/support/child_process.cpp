#include "tests/support/child_process.h"

#include <filesystem>
#include <stdexcept>

#include "lib/platform/owned.h"
#include "tests/support/scratch_folder.h"

namespace kelvo::test {

std::wstring ProgramPath(const std::wstring& name) {
  std::wstring self(32768, L'\0');
  self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
  return (std::filesystem::path(self).parent_path() / name).wstring();
}

ChildResult RunChild(std::wstring commandLine) {
  const ScratchFolder folder;
  OwnedFile output = CreateInheritableFile(folder.Path() / "output");
  OwnedFile errors = CreateInheritableFile(folder.Path() / "errors");
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output.get();
  startup.hStdError = errors.get();
  PROCESS_INFORMATION started{};
  // Under load Wine now and then answers a start with ERROR_INTERNAL_ERROR.
  for (int tries = 0; CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0,
                                     nullptr, nullptr, &startup, &started) == FALSE;
       ++tries) {
    if (GetLastError() != ERROR_INTERNAL_ERROR || tries == 10) {
      throw std::runtime_error("CreateProcessW failed");
    }
    Sleep(200);
  }
  const OwnedKernelObject process(started.hProcess);
  const OwnedKernelObject thread(started.hThread);
  WaitForSingleObject(process.get(), INFINITE);
  ChildResult result;
  GetExitCodeProcess(process.get(), &result.exitCode);
  output.reset();
  errors.reset();
  result.output = ReadBytes(folder.Path() / "output");
  result.errors = ReadBytes(folder.Path() / "errors");
  return result;
}

}  // namespace kelvo::test
