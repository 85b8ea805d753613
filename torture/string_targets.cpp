// Texts and lists, each against a plain reference.

#include <algorithm>

#include "lib/paths/long_path_prefix.h"
#include "lib/registry/registry_value_path.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/format_text.h"
#include "lib/string/string_tokenizer.h"
#include "lib/string/text_routines.h"
#include "lib/string/visible_text.h"
#include "lib/ui/text_substitution.h"
#include "tool/dependent_applications.h"
#include "torture/input.h"

namespace kelvo::torture {

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

std::wstring Fold(std::wstring text) {
  for (wchar_t& unit : text) {
    if (unit < 0x100 ? unit >= L'A' && unit <= L'Z' : unit != 0xFFFF) {
      LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, &unit, 1, &unit, 1);
    }
  }
  return text;
}

std::wstring UpToNul(const std::wstring& text) { return text.substr(0, text.find(L'\0')); }

void Tokenize(Input& input) {
  const std::wstring text = input.Text(40, L";;ab");
  const bool collapse = input.Chance();
  // One unit where runs collapse: of overlapping delimiters another reading is possible.
  const std::wstring delimiter = collapse ? L";" : std::wstring(L";;;a").substr(input.Number(3));
  std::vector<std::wstring> expected = Split(text, delimiter);
  if (collapse) {
    std::erase(expected, L"");
  }
  std::vector<std::wstring> seen;
  const GuardedText guarded(text, input.Chance());
  const GuardedText guardedDelimiter(delimiter, input.Chance());
  for (StringTokenizer items(WString(guarded.As<wchar_t>()),
                             WString(guardedDelimiter.As<wchar_t>()), collapse);
       items.HasMoreTokens();) {
    seen.push_back(Plain(items.NextToken()));
  }
  Expect(seen == expected, "the items are those of a plain split");
}

void Compare(Input& input) {
  const std::wstring alphabet = input.Chance() ? L"aAbBzZ\u00C9\u00E9\u0416\u0436\uFFFF" : L"";
  const std::wstring a = UpToNul(input.Text(12, alphabet));
  const std::wstring b = input.Chance() ? UpToNul(input.Text(12, alphabet)) : Fold(a);
  const int order = Fold(a).compare(Fold(b));
  const int seen = CompareNoCase(GuardedText(a, input.Chance()), GuardedText(b, input.Chance()));
  Expect((seen < 0) == (order < 0) && (seen > 0) == (order > 0),
         "the order is that of the folded texts");
}

void EditText(Input& input) {
  std::wstring plain = input.Text(20, L"ab");
  WString text(plain);
  const std::size_t start = input.Number(plain.length());
  const std::size_t count = input.Number(25);
  const std::wstring part = input.Text(3, L"ab");
  Expect(text.find(part, start) == plain.find(part, start), "find");
  Expect(text.rfind(part, start) == plain.rfind(part, start), "rfind");
  Expect(Plain(text.substr(start, count)) == plain.substr(start, count), "substr");
  text.append(part);
  text.erase(start, count);
  Expect(Plain(text) == (plain += part, plain.erase(start, count)), "append and erase");
  Expect(Plain(text.assign(text, text.length() / 2)) == plain.substr(plain.length() / 2), "assign");
  Expect(text.c_str()[text.length()] == L'\0', "a text ends in a NUL");
}

void Format(Input& input) {
  const std::wstring text = UpToNul(input.Text(300));
  const GuardedText guarded(text, input.Chance());
  const WString formatted = FormatText(L"<%s|%d>", static_cast<const wchar_t*>(guarded), 7);
  Expect(Plain(formatted) == L"<" + text + L"|7>", "a text is inserted as it is");
  const std::string visible = ToVisibleUtf8(text);
  Expect(std::ranges::none_of(visible, [](char unit) { return unit >= 0 && unit < ' '; }),
         "nothing acts on a terminal");
  Expect(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, visible.c_str(), -1, nullptr, 0) > 0,
         "it is valid UTF-8");
}

// The text with each hit replaced, and how many there were.
std::pair<std::wstring, std::size_t> Replace(const std::wstring& text, const std::wstring& search,
                                             const std::wstring& replacement) {
  std::wstring replaced;
  std::size_t hits = 0;
  std::size_t start = 0;
  for (std::size_t hit = 0;
       !search.empty() && (hit = text.find(search, start)) != std::wstring::npos;
       start = hit + search.length()) {
    replaced += text.substr(start, hit - start) + replacement;
    ++hits;
  }
  return {replaced + text.substr(start), hits};
}

void Substitute(Input& input) {
  const std::wstring text = input.Text(20, L"aab");
  const std::wstring search = input.Text(3, L"ab");
  const std::wstring replacement = input.Text(6, L"abc");
  const std::size_t capacity = text.length() + input.Number(10);
  const auto [all, hits] = Replace(text, search, replacement);
  const bool fits = text.length() < capacity;
  const std::wstring expected = hits == 0 || !fits ? text : all.substr(0, capacity - 1);
  const GuardedMemory buffer((text + L'\0' + std::wstring(capacity, L'x')).substr(0, capacity),
                             input.Chance());
  const BOOL replaced =
      ReplaceAllInBuffer(buffer.As<wchar_t>(), capacity, GuardedText(search, input.Chance()),
                         GuardedText(replacement, input.Chance()));
  Expect((replaced != FALSE) == (hits != 0 && fits), "it tells whether something was replaced");
  Expect(std::wstring(buffer.As<wchar_t>(), wcsnlen(buffer.As<wchar_t>(), capacity)) == expected,
         "the text is that of a plain replacement");
}

void Routines(Input& input) {
  const std::wstring text = input.Text(30, L"aab");
  const std::wstring search = input.Text(3, L"ab");
  const std::wstring replacement = input.Text(6, L"abc");
  const auto [all, hits] = Replace(text, search, replacement);
  WString replaced(text);
  Expect(ReplaceAll(replaced, GuardedText(search, input.Chance()),
                    GuardedText(replacement, input.Chance())) == hits,
         "each hit is counted");
  Expect(Plain(replaced) == all, "the text is that of a plain replacement");
  const std::size_t start = input.Number(40);
  const std::size_t length = input.Number(40);
  Expect(Plain(SubstringClamped(WString(text), start, length)) ==
             text.substr(std::min(start, text.length()), length),
         "a part is cut at the end");
}

void Prefixes(Input& input) {
  const std::wstring path =
      (input.Chance() ? L"C:\\" : L"") + input.Text(30, input.Chance() ? L"\\/.?:CUNx" : L"");
  const GuardedText guarded(UpToNul(path), input.Chance());
  const WString added = AddLongPathPrefix(guarded);
  const WString removed = RemoveLongPathPrefix(guarded);
  Expect(AddLongPathPrefix(added.c_str()) == added, "a prefix is put on once");
  Expect(HasLongPathPrefix(guarded) || removed == WString(UpToNul(path)),
         "nothing is taken off a path without a prefix");
}

void ParseValuePath(Input& input) {
  const std::wstring path = (input.Chance() ? L"HKEY_USERS\\" : L"") + input.Text(20, L"\\ab");
  HKEY root = nullptr;
  WString key;
  WString name;
  const bool isWhole = ParseRegistryValuePath(WString(path), root, key, name);
  Expect(isWhole == (root == HKEY_USERS && !key.empty() && !name.empty()),
         "a path is whole with a root, a key and a name");
  Expect(!isWhole || Plain(L"HKEY_USERS\\" + key + L"\\" + name) == path,
         "the parts make up the path");
  Expect(root == nullptr || path.starts_with(L"HKEY_USERS"), "no root is made up");
}

std::wstring Join(const std::vector<std::wstring>& items) {
  std::wstring list;
  for (const std::wstring& item : items) {
    list += (list.empty() ? L"" : L";") + item;
  }
  return list;
}

void EditList(Input& input) {
  const std::wstring alphabet = input.Chance() ? L";;aAb" : L";\u0416\u0436\xD800\u00C9";
  const std::wstring list = input.Text(30, alphabet);
  const std::wstring name = input.Text(4, alphabet);
  std::vector<std::wstring> left = Split(list, L";");
  std::erase_if(left,
                [&](const std::wstring& item) { return item.empty() || Fold(item) == Fold(name); });
  const GuardedText guardedName(name, input.Chance());
  Expect(Plain(ListWithoutApplication(WString(list), guardedName)) == Join(left),
         "all of that name go");
  const auto added = ListWithApplication(WString(list), guardedName);
  Expect(added.has_value() == (list.find(name) == std::wstring::npos),
         "a name that occurs is not added");
  if (added) {
    const std::wstring whole = list + L";" + name;
    const std::size_t first = whole.find_first_not_of(L';');
    const std::size_t last = whole.find_last_not_of(L';');
    Expect(Plain(*added) ==
               (first == std::wstring::npos ? L"" : whole.substr(first, last + 1 - first)),
           "the name stands at the end");
  }
}

}  // namespace

std::vector<Target> StringTargets() {
  return {{"tokenizer", Tokenize}, {"comparison", Compare},         {"text", EditText},
          {"format", Format},      {"substitution", Substitute},    {"routines", Routines},
          {"prefixes", Prefixes},  {"value paths", ParseValuePath}, {"applications", EditList}};
}

}  // namespace kelvo::torture
