#include "status/answer.h"
#include "tool/library_search.h"

extern "C" int wmain(int argc, wchar_t** argv) {
  kelvo::NarrowLibrarySearch();
  return kelvo::AnswerCommandLine(argc, argv);
}
