#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the name of a locale, also of a neutral one ("de-CH", "de"), with LCIDToLocaleName,
// looked up at run time. Empty for an unknown locale and on a Windows without that function.
WString LocaleNameFromLcid(LCID locale);

// Returns what GetLocaleInfoW knows about a locale; `type` is the kind of information, such as
// LOCALE_SNAME for its name. Empty when it knows nothing, and when memory runs out.
WString GetLocaleInfoString(LCID locale, LCTYPE type);

}  // namespace kelvo
