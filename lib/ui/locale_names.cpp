#include "lib/ui/locale_names.h"

#include <array>
#include <new>

#include "lib/platform/module.h"

namespace kelvo {

WString LocaleNameFromLcid(LCID locale) {
  auto* const toName = KELVO_FIND_FUNCTION(GetModuleHandleW(L"Kernel32.dll"), LCIDToLocaleName);
  if (toName == nullptr) {
    return {};
  }
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
  toName(locale, name.data(), LOCALE_NAME_MAX_LENGTH, LOCALE_ALLOW_NEUTRAL_NAMES);
  return {name.data()};
}

WString GetLocaleInfoString(LCID locale, LCTYPE type) {
  const int length = GetLocaleInfoW(locale, type, nullptr, 0);
  try {
    WString buffer(static_cast<std::size_t>(length) + 1, L'\0');
    GetLocaleInfoW(locale, type, buffer.data(), length);
    return {buffer.c_str()};
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace kelvo
