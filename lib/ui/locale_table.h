#pragma once

#include <windows.h>

namespace kelvo {

// The two functions below search a table of 158 locales. Each of these locales has kept its LCID
// and its name in every version of Windows since Vista.

// Returns the locale name for an LCID, such as "de-CH" for 0x0807, or null when the LCID is not in
// the table. Ignores the sort identifier (SORTIDFROMLCID).
const wchar_t* FindLocaleName(LCID locale);

// Returns the LCID for a locale name, ignoring the case of ASCII letters. Returns 0 for null and
// for a name that is not in the table.
LCID FindLocaleId(const wchar_t* name);

}  // namespace kelvo
