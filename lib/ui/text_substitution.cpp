#include "lib/ui/text_substitution.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace kelvo {

BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement) {
  if (buffer == nullptr || search == nullptr || *search == L'\0') {
    return FALSE;
  }
  const std::wstring_view text(buffer, wcsnlen(buffer, capacity));
  const std::wstring_view sought(search);
  const std::wstring_view inserted(replacement == nullptr ? L"" : replacement);
  std::size_t hit = text.length() < capacity ? text.find(sought) : WString::npos;
  if (hit == WString::npos) {
    return FALSE;
  }
  WString result;
  std::size_t copied = 0;
  for (; hit != WString::npos && result.length() < capacity; hit = text.find(sought, copied)) {
    result.append(text.substr(copied, hit - copied)).append(inserted);
    copied = hit + sought.length();
  }
  result.append(text.substr(copied));
  const std::size_t kept = std::min(result.length(), capacity - 1);
  std::copy_n(result.c_str(), kept, buffer);
  buffer[kept] = L'\0';
  return TRUE;
}

std::map<WString, WString>& TextSubstitutions() {
  static std::map<WString, WString> substitutions;
  return substitutions;
}

wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity) {
  ReplaceAllInBuffer(buffer, capacity, L"KELVO", L"kelvo");
  ReplaceAllInBuffer(buffer, capacity, L"Kelvo", L"kelvo");
  for (const auto& [search, replacement] : TextSubstitutions()) {
    ReplaceAllInBuffer(buffer, capacity, search.c_str(), replacement.c_str());
  }
  return buffer;
}

}  // namespace kelvo
