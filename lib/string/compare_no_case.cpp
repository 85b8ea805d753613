#include "lib/string/compare_no_case.h"

#include <windows.h>

#include <array>
#include <clocale>
#include <cwctype>
#include <numeric>
#include <string_view>

namespace kelvo {

namespace {

// Maps every UTF-16 code unit to lower case.
using Table = std::array<wchar_t, 0x10000>;

// Maps all units in one call, because a call to Windows costs far more than mapping one unit. In
// such a call, Windows could map a surrogate pair as one character. But the units are in ascending
// order. The only surrogate pair is therefore U+DBFF U+DC00, a private-use character without case.
Table MakeTable() {
  Table units;
  const auto fill = [&] { std::iota(units.begin(), units.end(), L'\0'); };
  fill();
  constexpr int kCount = static_cast<int>(units.size());
  // In the invariant locale, the result does not depend on the user's settings. With
  // LCMAP_LOWERCASE, the source and the destination may be the same buffer.
  if (LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, units.data(), kCount, units.data(), kCount) !=
      kCount) {
    fill();
  }
  return units;
}

wchar_t FoldInDefaultLocale(wchar_t unit) {
  if (unit < 0x100) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
  }
  static const Table table = MakeTable();
  return table[unit];
}

wchar_t FoldInLocale(wchar_t unit) { return static_cast<wchar_t>(std::towlower(unit)); }

// Returns true when `a` and `b` are the same letter from A to Z in different cases.
bool AreCasesOfLetter(unsigned a, unsigned b) {
  constexpr unsigned kCaseBit = 0x20;
  return (a ^ b) == kCaseBit && (a | kCaseBit) - L'a' < 26;
}

template <typename Fold>
std::int32_t Compare(const wchar_t* a, const wchar_t* b, bool foldsLetters, Fold fold) {
  const auto folded = [fold](wchar_t unit) { return unit == 0xFFFF ? unit : fold(unit); };
  // The first two conditions only save time: they avoid most calls of `fold`.
  for (; *a == *b || (foldsLetters && AreCasesOfLetter(*a, *b)) || folded(*a) == folded(*b);
       ++a, ++b) {
    if (*a == L'\0') {
      return 0;
    }
  }
  return std::int32_t{folded(*a)} - std::int32_t{folded(*b)};
}

}  // namespace

std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b) {
  // With null, setlocale only returns the name of the current locale.
  const bool isDefaultLocale = std::string_view(std::setlocale(LC_CTYPE, nullptr)) == "C";
  return isDefaultLocale ? Compare(a, b, true, FoldInDefaultLocale)
                         : Compare(a, b, false, FoldInLocale);
}

}  // namespace kelvo
