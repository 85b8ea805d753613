#include "lib/string/hex_text.h"

namespace kelvo {

WString BytesToHex(const void* bytes, std::size_t count) {
  if (bytes == nullptr) {
    return {};
  }
  constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
  const auto* const source = static_cast<const unsigned char*>(bytes);
  WString text(2 * count, L'\0');
  wchar_t* out = text.data();
  for (std::size_t index = 0; index < count; ++index) {
    *out++ = kDigits[source[index] >> 4];
    *out++ = kDigits[source[index] & 0xF];
  }
  return text;
}

}  // namespace kelvo
