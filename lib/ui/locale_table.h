#pragma once

#include <windows.h>

namespace kelvo {

// A table of 158 locales that have the same number and name in every Windows since Vista.

// Returns the name of a locale, such as "de-CH" for 0x0807, or null for one that is not in the
// table. The bits of its sort order (SORTIDFROMLCID) are ignored.
const wchar_t* FindLocaleName(LCID locale);

// Returns the number of the locale of this name, in any ASCII letter case, or 0 for a null pointer
// and for a name that is not in the table.
LCID FindLocaleId(const wchar_t* name);

}  // namespace kelvo
