// Strings and lists, each compared with a plain reference.

#include <algorithm>

#include "lib/paths/long_path_prefix.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/format_text.h"
#include "lib/string/string_tokenizer.h"
#include "lib/string/utf8.h"
#include "lib/string/visible_text.h"
#include "lib/ui/text_substitution.h"
#include "tests/fuzz/input.h"
#include "tool/dependent_applications.h"

namespace kelvo::fuzz {

namespace {

std::wstring Plain(std::wstring_view text) { return std::wstring(text); }

// The items between delimiters, from left to right; what follows the last one only when it is not
// empty.
std::vector<std::wstring> Split(const std::wstring& text, const std::wstring& delimiter) {
  std::vector<std::wstring> items;
  std::size_t start = 0;
  for (std::size_t hit = 0; (hit = text.find(delimiter, start)) != std::wstring::npos;) {
    items.push_back(text.substr(start, hit - start));
    start = hit + delimiter.length();
  }
  if (start < text.length()) {
    items.push_back(text.substr(start));
  }
  return items;
}

std::wstring Join(const std::vector<std::wstring>& items) {
  std::wstring list;
  for (const std::wstring& item : items) {
    list += (list.empty() ? L"" : L";") + item;
  }
  return list;
}

std::wstring Fold(std::wstring text) {
  for (wchar_t& unit : text) {
    if (unit < 0x100 ? unit >= L'A' && unit <= L'Z' : unit != 0xFFFF) {
      LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, &unit, 1, &unit, 1);
    }
  }
  return text;
}

const Target kTokenizer("tokenizer", [](Input& input) {
  const std::wstring text = input.Text(40, L";;ab");
  const bool collapse = input.Chance();
  // One unit where runs collapse: of overlapping delimiters another reading is possible.
  const std::wstring delimiter = collapse ? L";" : std::wstring(L";;;a").substr(input.Number(3));
  std::vector<std::wstring> expected = Split(text, delimiter);
  if (collapse) {
    std::erase(expected, L"");
  }
  std::vector<std::wstring> seen;
  StringTokenizer items(WString(GuardedText(text, input.Chance())),
                        WString(GuardedText(delimiter, input.Chance())), collapse);
  while (items.HasMoreTokens()) {
    seen.push_back(Plain(items.NextToken()));
  }
  Expect(seen == expected, "the items are those of a plain split");
});

const Target kComparison("comparison", [](Input& input) {
  const std::wstring alphabet = input.Chance() ? L"aAbBzZ\u00C9\u00E9\u0416\u0436\uFFFF" : L"";
  const std::wstring a = input.Word(12, alphabet);
  const std::wstring b = input.Chance() ? input.Word(12, alphabet) : Fold(a);
  const int order = Fold(a).compare(Fold(b));
  const int seen = CompareNoCase(GuardedText(a, input.Chance()), GuardedText(b, input.Chance()));
  Expect((seen < 0) == (order < 0) && (seen > 0) == (order > 0),
         "the order is that of the folded strings");
});

const Target kFormat("format", [](Input& input) {
  const std::wstring text = input.Word(300);
  const GuardedText guarded(text, input.Chance());
  const WString formatted = FormatText(L"<%s|%d>", static_cast<const wchar_t*>(guarded), 7);
  Expect(Plain(formatted) == L"<" + text + L"|7>", "a string is inserted as it is");
  const std::string visible = ToVisibleUtf8(text);
  Expect(std::ranges::none_of(visible, [](char unit) { return unit >= 0 && unit < ' '; }),
         "visible text has no control characters");
  for (const std::string& utf8 : {visible, ToUtf8(text)}) {
    Expect(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.c_str(), -1, nullptr, 0) > 0,
           "it is valid UTF-8");
  }
});

const Target kSubstitution("substitution", [](Input& input) {
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
  Expect((replaced != FALSE) == (occurs && fits), "it returns whether something was replaced");
  Expect(std::wstring(buffer.As<wchar_t>(), wcsnlen(buffer.As<wchar_t>(), capacity)) == expected,
         "the buffer has what a plain replacement gives");
});

const Target kPrefixes("prefixes", [](Input& input) {
  const std::wstring path =
      (input.Chance() ? L"C:\\" : L"") + input.Word(30, input.Chance() ? L"\\/.?:CUNx" : L"");
  const GuardedText guarded(path, input.Chance());
  const WString added = AddLongPathPrefix(guarded);
  Expect(AddLongPathPrefix(added.c_str()) == added, "a prefix is added once");
  Expect(HasLongPathPrefix(guarded) || Plain(RemoveLongPathPrefix(guarded)) == path,
         "a path without a prefix stays as it is");
  wchar_t full[MAX_PATH] = L"";
  GetFullPathNameW(guarded, MAX_PATH, full, nullptr);
  Expect(Plain(added) == path || Plain(RemoveLongPathPrefix(added.c_str())) == full,
         "without the prefix it is the full path");
});

const Target kApplications("applications", [](Input& input) {
  const std::wstring alphabet = input.Chance() ? L";;aAb" : L";\u0416\u0436\xD800\u00C9";
  const std::wstring list = input.Text(30, alphabet);
  const std::wstring name = input.Text(4, alphabet);
  std::vector<std::wstring> left = Split(list, L";");
  std::erase_if(left,
                [&](const std::wstring& item) { return item.empty() || Fold(item) == Fold(name); });
  const GuardedText guarded(name, input.Chance());
  Expect(Plain(ListWithoutApplication(WString(list), guarded)) == Join(left),
         "every item of that name is removed");
  const auto added = ListWithApplication(WString(list), guarded);
  Expect(added.has_value() == (list.find(name) == std::wstring::npos),
         "a name that occurs is not added");
  const std::wstring whole = list + L";" + name;
  const std::size_t first = std::min(whole.find_first_not_of(L';'), whole.length());
  Expect(!added || Plain(*added) == whole.substr(first, whole.find_last_not_of(L';') + 1 - first),
         "the name is added at the end");
});

}  // namespace

}  // namespace kelvo::fuzz
