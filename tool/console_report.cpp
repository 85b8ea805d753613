#include "tool/console_report.h"

#include <algorithm>
#include <cstdarg>
#include <limits>
#include <string>
#include <string_view>

#include "lib/string/format_text.h"

namespace kelvo {

namespace {

std::string ToConsoleBytes(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.length() + 1);
  for (const wchar_t unit : text) {
    // Adds a CR before each LF, even if the text already has a CR there. A system message ends in
    // CR LF, so it is written with CR CR LF at the end.
    if (unit == L'\n') {
      bytes += '\r';
    }
    bytes += unit <= 0xFF ? static_cast<char>(unit) : '?';
  }
  return bytes;
}

void WriteToStandardOutput(std::string_view bytes) {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  while (!bytes.empty()) {
    constexpr std::size_t kMost = std::numeric_limits<DWORD>::max();
    DWORD written = 0;
    if (WriteFile(output, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), kMost)), &written,
                  nullptr) == FALSE ||
        written == 0) {
      return;
    }
    bytes.remove_prefix(written);
  }
}

}  // namespace

void Report(const wchar_t* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const WString text = FormatTextV(format, arguments);
  va_end(arguments);
  WriteToStandardOutput(ToConsoleBytes(text));
}

WString FormatSystemMessage(DWORD code) {
  constexpr DWORD kMessageLength = 2000;
  WString buffer(kMessageLength, L'\0');
  // FormatMessageW fails for a message with inserts ("%1"), because this call passes no arguments
  // for the inserts. FormatMessageW then returns 0, and resize drops any part of the message that
  // is already in the buffer.
  buffer.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, code,
                               MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), buffer.data(),
                               kMessageLength, nullptr));
  return buffer;
}

}  // namespace kelvo
