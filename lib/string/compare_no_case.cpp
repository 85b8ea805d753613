#include "lib/string/compare_no_case.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <clocale>
#include <cwctype>
#include <memory>
#include <new>
#include <string_view>

namespace kelvo {

namespace {

// A call into Windows costs far more than mapping one unit, so 256 are mapped at once, when one of
// them is first needed, and kept for the life of the process.
using Page = std::array<wchar_t, 256>;

wchar_t MapUnit(wchar_t unit) {
  wchar_t mapped = unit;
  // The invariant locale, so that the user's settings do not change which strings are equal.
  return LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, &unit, 1, &mapped, 1) == 1 ? mapped : unit;
}

// Null when memory runs out or the mapping fails.
const Page* MakePage(wchar_t first) {
  std::unique_ptr<Page> page(new (std::nothrow) Page);
  Page units{};
  for (wchar_t& unit : units) {
    unit = first++;
  }
  constexpr int kCount = static_cast<int>(units.size());
  if (page && LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, units.data(), kCount, page->data(),
                           kCount) != kCount) {
    page.reset();
  }
  return page.release();
}

wchar_t FoldInDefaultLocale(wchar_t unit) {
  static std::array<std::atomic<const Page*>, 256> pages;
  if (unit < 0x100) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
  }
  std::atomic<const Page*>& place = pages[unit >> 8];
  const Page* page = place.load(std::memory_order_acquire);
  if (page == nullptr) {
    page = MakePage(static_cast<wchar_t>(unit & 0xFF00));
    const Page* other = nullptr;
    if (page == nullptr) {
      return MapUnit(unit);
    }
    if (!place.compare_exchange_strong(other, page)) {
      // Another thread was faster.
      delete page;
      page = other;
    }
  }
  return (*page)[unit & 0xFF];
}

wchar_t FoldInLocale(wchar_t unit) { return static_cast<wchar_t>(std::towlower(unit)); }

// Returns true for one letter from A to Z in both cases.
bool AreCasesOfLetter(unsigned a, unsigned b) {
  constexpr unsigned kCaseBit = 0x20;
  return (a ^ b) == kCaseBit && (a | kCaseBit) - L'a' < 26;
}

template <typename Fold>
std::int32_t Compare(const wchar_t* a, const wchar_t* b, bool foldsLetters, Fold fold) {
  const auto folded = [fold](wchar_t unit) { return unit == 0xFFFF ? unit : fold(unit); };
  // Nearly all units are equal or letters.
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
  // NOLINTNEXTLINE(concurrency-mt-unsafe): asks, and changes nothing
  const bool isDefaultLocale = std::string_view(std::setlocale(LC_CTYPE, nullptr)) == "C";
  return isDefaultLocale ? Compare(a, b, true, FoldInDefaultLocale)
                         : Compare(a, b, false, FoldInLocale);
}

}  // namespace kelvo
