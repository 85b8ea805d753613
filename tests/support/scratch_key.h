#pragma once

#include <windows.h>

#include "lib/registry/registry_key.h"
#include "lib/string/wstring.h"

namespace kelvo::test {

// The path of a registry key of this test's own below HKEY_CURRENT_USER. The key is not there at
// first and goes, with everything below it, when this object goes.
class ScratchKey {
 public:
  ScratchKey();
  ScratchKey(const ScratchKey&) = delete;
  ScratchKey& operator=(const ScratchKey&) = delete;
  ~ScratchKey();

  [[nodiscard]] const wchar_t* Path() const { return path_.c_str(); }

 private:
  WString path_;
};

// As long as it lives, this process finds an empty key of the test's own in place of one of
// Windows' predefined keys (RegOverridePredefKey). Throws std::runtime_error when that is not to be
// had.
class StandInKey {
 public:
  explicit StandInKey(HKEY predefined);
  StandInKey(const StandInKey&) = delete;
  StandInKey& operator=(const StandInKey&) = delete;
  ~StandInKey();

 private:
  ScratchKey scratch_;
  HKEY predefined_;
};

}  // namespace kelvo::test
