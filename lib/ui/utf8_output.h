#pragma once

#include <windows.h>

#include <string_view>

namespace kelvo {

// Writes UTF-8 text to a standard device, STD_OUTPUT_HANDLE or STD_ERROR_HANDLE. Each "\n" becomes
// CR LF. A console receives UTF-16 (WriteConsoleW), so the console's code page does not matter. A
// file or a pipe receives the UTF-8 bytes. Returns false when not all of the text was written.
bool WriteUtf8(DWORD device, std::string_view utf8);

}  // namespace kelvo
