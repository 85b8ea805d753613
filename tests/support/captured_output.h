#pragma once

#include <windows.h>

#include <string>

#include "lib/platform/owned.h"
#include "tests/support/scratch_folder.h"

namespace kelvo::test {

// As long as it lives, what this process writes to the handle of its standard output goes to a
// file.
class CapturedOutput {
 public:
  CapturedOutput();
  CapturedOutput(const CapturedOutput&) = delete;
  CapturedOutput& operator=(const CapturedOutput&) = delete;
  ~CapturedOutput();

  // What was written so far, byte by byte.
  [[nodiscard]] std::string Text() const;

 private:
  ScratchFolder folder_;
  OwnedFile file_;
  HANDLE previous_;
};

}  // namespace kelvo::test
