#pragma once

namespace kelvo {

// Runs the one command that the words ask for and returns the process's exit code: 0 from install
// and uninstall; the code of the Bluetooth call, whole, from register and unregister; 2, with the
// usage text written, for words that match no form. `arguments` are `count` words, the program's
// own path first.
int RunCommandLine(int count, const wchar_t* const* arguments);

}  // namespace kelvo
