// Compares ReplaceAllInBuffer with a simple replacement in a std::wstring.

#include <algorithm>

#include "lib/ui/text_substitution.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

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
         "the buffer has the result of the simple replacement");
});

}  // namespace kelvo::fuzz
