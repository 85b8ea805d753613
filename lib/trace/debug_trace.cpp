#include "lib/trace/debug_trace.h"

#include <cstdarg>

#include "lib/string/format_text.h"

namespace kelvo {

void DebugTrace(const wchar_t* format, ...) {
  SYSTEMTIME now{};
  GetSystemTime(&now);
  std::va_list arguments;
  va_start(arguments, format);
  const WString message = FormatTextV(format, arguments);
  va_end(arguments);
  OutputDebugStringW(FormatTraceLine(now, message).c_str());
}

WString FormatTraceLine(const SYSTEMTIME& time, const WString& message) {
  return FormatText(L"%02d.%02d.%04d %02d:%02d:%02d:%03d ", time.wDay, time.wMonth, time.wYear,
                    time.wHour, time.wMinute, time.wSecond, time.wMilliseconds) +
         message;
}

}  // namespace kelvo
