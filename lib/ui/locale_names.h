#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the name of a locale, for example "de-CH". A neutral locale has a name without a
// region, for example "de". Calls LCIDToLocaleName, which is looked up at run time. Returns an
// empty string when the locale is unknown or Windows lacks LCIDToLocaleName.
WString LocaleNameFromLcid(LCID locale);

// Returns information about a locale as a string (GetLocaleInfoW). `type` is the kind of
// information, such as LOCALE_SNAME for the locale's name. Returns an empty string when Windows
// does not have this information, or when memory runs out.
WString GetLocaleInfoString(LCID locale, LCTYPE type);

}  // namespace kelvo
