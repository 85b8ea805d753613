#include "lib/string/visible_text.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "lib/string/format_text.h"
#include "lib/string/utf8.h"

namespace kelvo {

namespace {

bool ActsOnTerminal(wchar_t unit) {
  struct Range {
    wchar_t first;
    wchar_t last;
  };
  static constexpr Range kRanges[] = {
      {0x0000, 0x001F}, {0x007F, 0x009F}, {0x061C, 0x061C}, {0x200E, 0x200F},
      {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF},
  };
  return std::any_of(std::begin(kRanges), std::end(kRanges), [unit](const Range& range) {
    return unit >= range.first && unit <= range.last;
  });
}

}  // namespace

std::string ToVisibleUtf8(std::wstring_view text) {
  WString visible;
  for (std::size_t i = 0; i < text.length(); ++i) {
    if (i + 1 < text.length() && IS_SURROGATE_PAIR(text[i], text[i + 1])) {
      visible.append(text.substr(i++, 2));
    } else if (ActsOnTerminal(text[i]) || IS_HIGH_SURROGATE(text[i]) || IS_LOW_SURROGATE(text[i])) {
      visible += FormatText(L"<U+%04X>", text[i]);
    } else {
      visible.append(text.substr(i, 1));
    }
  }
  return ToUtf8(visible);
}

std::size_t CountCharacters(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;  // not a continuation byte
  }));
}

}  // namespace kelvo
