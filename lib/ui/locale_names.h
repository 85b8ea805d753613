#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the locale name for an LCID, such as "de-CH", or "de" for a neutral locale
// (LCIDToLocaleName, looked up at run time). Empty for an unknown locale and when Windows lacks
// that function.
WString LocaleNameFromLcid(LCID locale);

// Returns information about a locale as a string (GetLocaleInfoW). `type` is the kind of
// information, such as LOCALE_SNAME for the locale's name. Empty when Windows has none, and when
// memory runs out.
WString GetLocaleInfoString(LCID locale, LCTYPE type);

}  // namespace kelvo
