#include "lib/ui/utf8_output.h"

#include <algorithm>
#include <limits>
#include <string>

namespace kelvo {

namespace {

std::string WithCarriageReturns(std::string_view text) {
  std::string lines;
  lines.reserve(text.length());
  for (const char byte : text) {
    lines += byte == '\n' ? "\r" : "";
    lines += byte;
  }
  return lines;
}

bool WriteToConsole(HANDLE console, const std::string& utf8) {
  // 0x2000 UTF-16 code units are 16 KiB. Before Windows 8, WriteConsoleW fails when the text does
  // not fit into a heap of 64 KiB.
  constexpr std::size_t kMostUnits = 0x2000;
  // A text never has more code units in UTF-16 than bytes in UTF-8.
  std::wstring text(utf8.length(), L'\0');
  const auto size = static_cast<int>(utf8.length());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), size);
  for (std::size_t at = 0; at < static_cast<std::size_t>(length);) {
    std::size_t units = std::min(kMostUnits, static_cast<std::size_t>(length) - at);
    // Does not split a surrogate pair.
    units -= IS_HIGH_SURROGATE(text[at + units - 1]) ? 1 : 0;
    DWORD written = 0;
    if (WriteConsoleW(console, &text[at], static_cast<DWORD>(units), &written, nullptr) == FALSE ||
        written != units) {
      return false;
    }
    at += units;
  }
  return true;
}

}  // namespace

bool WriteUtf8(DWORD device, std::string_view utf8) {
  const std::string lines = WithCarriageReturns(utf8);
  if (lines.empty() || lines.length() > std::numeric_limits<int>::max()) {
    return lines.empty();
  }
  HANDLE const output = GetStdHandle(device);
  DWORD mode = 0;
  if (GetConsoleMode(output, &mode) != FALSE) {
    return WriteToConsole(output, lines);
  }
  DWORD written = 0;
  return WriteFile(output, lines.data(), static_cast<DWORD>(lines.length()), &written, nullptr) !=
             FALSE &&
         written == lines.length();
}

}  // namespace kelvo
