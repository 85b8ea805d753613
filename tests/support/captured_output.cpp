#include "tests/support/captured_output.h"

namespace kelvo::test {

CapturedOutput::CapturedOutput()
    : file_(CreateInheritableFile(folder_.Path() / "output")),
      previous_(GetStdHandle(STD_OUTPUT_HANDLE)) {
  SetStdHandle(STD_OUTPUT_HANDLE, file_.get());
}

CapturedOutput::~CapturedOutput() { SetStdHandle(STD_OUTPUT_HANDLE, previous_); }

std::string CapturedOutput::Text() const { return ReadBytes(folder_.Path() / "output"); }

}  // namespace kelvo::test
