#include "lib/ui/text_substitution.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

#include "lib/string/internal/text_replacement.h"

namespace kelvo {

BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement) {
  if (buffer == nullptr || search == nullptr || *search == L'\0') {
    return FALSE;
  }
  const std::wstring_view text(buffer, wcsnlen(buffer, capacity));
  const std::wstring_view sought(search);
  const std::wstring_view inserted(replacement == nullptr ? L"" : replacement);
  if (text.length() == capacity || text.find(sought) == std::wstring_view::npos) {
    return FALSE;
  }
  WString result(capacity - 1, L'\0');
  const std::size_t kept =
      internal::WriteReplaced(text, sought, inserted, {result.data(), result.length()});
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
