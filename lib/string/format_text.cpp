#include "lib/string/format_text.h"

#include <cstdio>

namespace kelvo {

WString FormatText(const wchar_t* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  WString text = FormatTextV(format, arguments);
  va_end(arguments);
  return text;
}

WString FormatTextV(const wchar_t* format, std::va_list arguments) {
  std::va_list measured;
  va_copy(measured, arguments);
  const int length = _vscwprintf(format, measured);
  va_end(measured);
  if (length <= 0) {
    return {};
  }
  const auto units = static_cast<std::size_t>(length);
  WString text(units, L'\0');
  // The standard vswprintf is unsuitable: in mingw, it expects a narrow string for "%s".
  if (_vsnwprintf(text.data(), units, format, arguments) != length) {
    text.clear();
  }
  return text;
}

}  // namespace kelvo
