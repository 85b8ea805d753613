#include "tool/command_line.h"

extern "C" int wmain(int argc, wchar_t** argv) { return kelvo::RunCommandLine(argc, argv); }
