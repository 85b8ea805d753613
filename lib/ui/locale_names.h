#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// The name of a locale, neutral ones included ("de-CH", "de"): LCIDToLocaleName, looked up at run
// time. Empty for an unknown locale and on a Windows without that function.
WString LocaleNameFromLcid(LCID locale);

// What GetLocaleInfoW tells of a locale, `type` saying what (LOCALE_SNAME is its name). Empty when
// it tells nothing, and when memory is exhausted.
WString GetLocaleInfoString(LCID locale, LCTYPE type);

}  // namespace kelvo
