// Compares functions for strings and lists with simple reference implementations.

#include <algorithm>

#include "lib/string/format_text.h"
#include "lib/string/string_tokenizer.h"
#include "lib/string/utf8.h"
#include "lib/string/visible_text.h"
#include "lib/ui/text_substitution.h"
#include "tests/fuzz/input.h"
#include "tool/dependent_applications.h"

namespace kelvo::fuzz {

// Returns the items between delimiters, from left to right. Leaves out the last item if it is
// empty.
static std::vector<WString> Split(const std::wstring& text, const std::wstring& delimiter) {
  std::vector<WString> items;
  std::size_t start = 0;
  for (std::size_t hit = 0; (hit = text.find(delimiter, start)) != std::wstring::npos;) {
    items.emplace_back(text.substr(start, hit - start));
    start = hit + delimiter.length();
  }
  if (start < text.length()) {
    items.emplace_back(text.substr(start));
  }
  return items;
}

static const Target kTokenizer("tokenizer", [](Input& input) {
  const std::wstring text = input.Text(40, L";;ab");
  const bool collapse = input.Chance();
  // If runs collapse, the delimiter is one unit: longer delimiters can overlap in several ways.
  const std::wstring delimiter = collapse ? L";" : std::wstring(L";;;a").substr(input.Number(3));
  std::vector<WString> expected = Split(text, delimiter);
  if (collapse) {
    std::erase(expected, L"");
  }
  std::vector<WString> seen;
  StringTokenizer items(WString(GuardedText(text, input.Chance())),
                        WString(GuardedText(delimiter, input.Chance())), collapse);
  while (items.HasMoreTokens()) {
    seen.push_back(items.NextToken());
  }
  Expect(seen == expected, "the items are those of the reference split");
});

static const Target kFormat("format", [](Input& input) {
  std::wstring text = input.Text(300);
  std::erase(text, L'\0');
  const GuardedText guarded(text, input.Chance());
  const WString formatted = FormatText(L"<%s|%d>", static_cast<const wchar_t*>(guarded), 7);
  Expect(std::wstring_view(formatted) == L"<" + text + L"|7>", "a string is inserted as it is");
  const std::string visible = ToVisibleUtf8(text);
  Expect(std::ranges::none_of(visible, [](char unit) { return unit >= 0 && unit < ' '; }),
         "visible text has no control characters");
  for (const std::string& utf8 : {visible, ToUtf8(text)}) {
    Expect(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.c_str(), -1, nullptr, 0) > 0,
           "the result is valid UTF-8");
  }
});

static const Target kSubstitution("substitution", [](Input& input) {
  const std::wstring text = input.Text(20, L"aab");
  const std::wstring search = input.Text(3, L"ab");
  const std::wstring replacement = input.Text(6, L"abc");
  const std::size_t capacity = text.length() + input.Number(10);
  const bool fits = text.length() < capacity;
  const bool occurs = !search.empty() && text.find(search) != std::wstring::npos;
  std::wstring expected = text;
  if (occurs && fits) {
    for (std::size_t hit = 0; (hit = expected.find(search, hit)) != std::wstring::npos;
         hit += replacement.length()) {
      expected.replace(hit, search.length(), replacement);
    }
    expected.resize(std::min(expected.length(), capacity - 1));
  }
  const GuardedMemory buffer((text + L'\0' + std::wstring(capacity, L'x')).substr(0, capacity),
                             input.Chance());
  const BOOL replaced =
      ReplaceAllInBuffer(buffer.As<wchar_t>(), capacity, GuardedText(search, input.Chance()),
                         GuardedText(replacement, input.Chance()));
  Expect((replaced != FALSE) == (occurs && fits), "the result says whether text was replaced");
  Expect(std::wstring(buffer.As<wchar_t>(), wcsnlen(buffer.As<wchar_t>(), capacity)) == expected,
         "the buffer has the text of the reference replacement");
});

static const Target kApplications("applications", [](Input& input) {
  constexpr const wchar_t* kAlphabet = L";;;aAb\u0416\u0436";
  const std::wstring list = input.Text(30, kAlphabet);
  const std::wstring name = input.Text(4, kAlphabet);
  std::wstring left;
  for (const WString& item : Split(list, L";")) {
    if (!item.empty() && lstrcmpiW(item.c_str(), name.c_str()) != 0) {
      left += (left.empty() ? L"" : L";") + std::wstring(item);
    }
  }
  const GuardedText guarded(name, input.Chance());
  Expect(std::wstring_view(ListWithoutApplication(WString(list), guarded)) == left,
         "every item of that name is removed");
  const auto added = ListWithApplication(WString(list), guarded);
  Expect(added.has_value() == (list.find(name) == std::wstring::npos),
         "a name that occurs is not added");
  const std::wstring whole = list + L";" + name;
  const std::size_t first = std::min(whole.find_first_not_of(L';'), whole.length());
  const std::size_t end = whole.find_last_not_of(L';') + 1;
  Expect(!added || std::wstring_view(*added) == whole.substr(first, end - first),
         "the name is added at the end");
});

}  // namespace kelvo::fuzz
