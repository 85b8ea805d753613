#pragma once

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

}  // namespace kelvo::test
