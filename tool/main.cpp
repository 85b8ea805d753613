#include "tool/command_line.h"
#include "tool/library_search.h"

extern "C" int wmain(int argc, wchar_t** argv) {
  kelvo::NarrowLibrarySearch();
  return kelvo::RunCommandLine(argc, argv);
}
