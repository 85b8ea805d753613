#pragma once

#include <optional>
#include <string>

#include "tests/support/child_process.h"
#include "tests/support/scratch_folder.h"

namespace kelvo::test {

// A copy of sorrel.exe with the simulator's libraries beside it in a folder of its own, on a
// machine with no dependent application recorded and both certificate stores empty.
class Rehearsal {
 public:
  Rehearsal();

  // Runs sorrel.exe with these words. The journal starts anew each time.
  ChildResult Run(const std::wstring& words);
  // Tells the simulator something, by the part of the variable's name behind SORREL_SIMULATOR_.
  void Set(const std::wstring& variable, const std::wstring& value);
  // Takes a file out of the program's folder, or puts another one in its place.
  void Remove(const wchar_t* file) const;
  void Exchange(const wchar_t* file, const wchar_t* other) const;
  // The journal's lines of calls, with "\n" behind each; `withLoading` those of loading and freeing
  // too.
  [[nodiscard]] std::string Journal(bool withLoading = false) const;
  [[nodiscard]] const ScratchFolder& Folder() const { return folder_; }

 private:
  ScratchFolder folder_;
};

// The journal's line of the call that registers the service, or unregisters it.
std::string ServiceCall(bool enabled);

// The list of dependent applications in the registry; nothing when there is no such value.
std::optional<std::wstring> Applications();
void SetApplications(const std::wstring& list, DWORD type = REG_SZ);

}  // namespace kelvo::test
