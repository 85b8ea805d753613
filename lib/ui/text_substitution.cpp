#include "lib/ui/text_substitution.h"

#include <cwchar>
#include <string>
#include <string_view>

#include "lib/string/internal/text_replacement.h"

namespace kelvo {

BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement) {
  if (buffer == nullptr || search == nullptr || *search == L'\0') {
    return FALSE;
  }
  const std::wstring_view given(buffer, wcsnlen(buffer, capacity));
  if (given.length() == capacity || given.find(search) == std::wstring_view::npos) {
    return FALSE;
  }
  const std::wstring text(given);
  const std::wstring_view inserted(replacement == nullptr ? L"" : replacement);
  const std::size_t kept = internal::WriteReplaced(text, search, inserted, {buffer, capacity - 1});
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
