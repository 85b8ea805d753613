#include "lib/string/compare_no_case.h"

#include <windows.h>

#include <clocale>
#include <cwctype>
#include <string_view>

namespace kelvo {

namespace {

wchar_t FoldInDefaultLocale(wchar_t unit) {
  if (unit < 0x100) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
  }
  wchar_t folded = unit;
  // The invariant locale, so that the user's settings do not change which names are the same.
  return LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, &unit, 1, &folded, 1) == 1 ? folded : unit;
}

wchar_t Fold(wchar_t unit, bool isDefaultLocale) {
  if (unit == 0xFFFF) {
    return unit;
  }
  return isDefaultLocale ? FoldInDefaultLocale(unit) : static_cast<wchar_t>(std::towlower(unit));
}

}  // namespace

std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b) {
  const bool isDefaultLocale = std::string_view(std::setlocale(LC_CTYPE, nullptr)) == "C";
  for (;; ++a, ++b) {
    const wchar_t foldedA = Fold(*a, isDefaultLocale);
    const wchar_t foldedB = Fold(*b, isDefaultLocale);
    if (foldedA == L'\0' || foldedA != foldedB) {
      return std::int32_t{foldedA} - std::int32_t{foldedB};
    }
  }
}

}  // namespace kelvo
