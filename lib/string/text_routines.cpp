#include "lib/string/text_routines.h"

#include <stdexcept>
#include <string_view>
#include <utility>

#include "lib/string/internal/text_replacement.h"
#include "lib/string/string_tokenizer.h"

namespace kelvo {

namespace {

std::size_t CountOccurrences(std::wstring_view text, std::wstring_view search) {
  std::size_t count = 0;
  for (std::size_t hit = text.find(search); hit != std::wstring_view::npos;
       hit = text.find(search, hit + search.length())) {
    ++count;
  }
  return count;
}

// Returns a string of NULs with the length that `text` will have after `count` replacements. Each
// replacement removes `removed` characters and adds `added` characters.
WString RoomFor(const WString& text, std::size_t count, std::size_t removed, std::size_t added) {
  const std::size_t kept = text.length() - (count * removed);
  if (added > (text.max_size() - kept) / count) {
    throw std::length_error("string too long");
  }
  return {kept + (count * added), L'\0'};
}

}  // namespace

WString SubstringClamped(const WString& text, std::size_t start, std::size_t count) {
  return start < text.length() ? text.substr(start, count) : WString();
}

std::size_t ReplaceAll(WString& text, const wchar_t* search, const wchar_t* replacement) {
  const std::wstring_view sought(search != nullptr ? search : L"");
  const std::wstring_view inserted(replacement != nullptr ? replacement : L"");
  const std::size_t count = sought.empty() ? 0 : CountOccurrences(text, sought);
  if (count > 0) {
    WString result = RoomFor(text, count, sought.length(), inserted.length());
    internal::WriteReplaced(text, sought, inserted, {result.data(), result.length()});
    text = std::move(result);
  }
  return count;
}

std::size_t CountTokens(const WString& text, const WString& delimiter, bool collapse) {
  if (delimiter.empty()) {
    return text.empty() ? 0 : 1;
  }
  std::size_t count = 0;
  for (StringTokenizer tokens(text, delimiter, collapse); tokens.HasMoreTokens(); ++count) {
    tokens.NextToken();
  }
  return count;
}

}  // namespace kelvo
