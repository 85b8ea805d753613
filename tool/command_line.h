#pragma once

namespace kelvo {

// Runs the command that the `count` arguments specify. The first argument is the program's own
// path. Returns the process's exit code:
//   - install, uninstall: 0
//   - register, unregister: the result of RegisterHandsfreeService (tool/handsfree_service.h), or 0
//     when an application's name follows "unregister" and other names remain on the list
//     (tool/dependent_applications.h)
//   - any other arguments: 2, after writing the usage text
int RunCommandLine(int count, const wchar_t* const* arguments);

}  // namespace kelvo
