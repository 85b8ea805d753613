#pragma once

#include <windows.h>

#include <string_view>

namespace kelvo {

// Writes UTF-8 with CR LF for each "\n" to a standard device, STD_OUTPUT_HANDLE or
// STD_ERROR_HANDLE: as characters to a console, whatever its code page, and as bytes to a file or a
// pipe. Returns false when not all of it was written.
bool WriteUtf8(DWORD device, std::string_view utf8);

}  // namespace kelvo
