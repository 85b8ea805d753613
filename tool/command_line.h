#pragma once

namespace kelvo {

// Runs the command that the arguments ask for and returns the process's exit code: 0 for install
// and uninstall; what RegisterHandsfreeService returns for register and unregister, but 0 for an
// unregister that leaves other applications; 2, after writing the usage text, for arguments that
// match no form. `arguments` are `count` strings, the first of which is the program's own path.
int RunCommandLine(int count, const wchar_t* const* arguments);

}  // namespace kelvo
