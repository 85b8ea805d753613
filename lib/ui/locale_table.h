#pragma once

#include <windows.h>

namespace kelvo {

// A table of 158 locales that have the same LCID and name in every Windows since Vista.

// Returns the locale name for an LCID, such as "de-CH" for 0x0807, or null for one that is not in
// the table. Ignores the sort identifier (SORTIDFROMLCID).
const wchar_t* FindLocaleName(LCID locale);

// Returns the locale identifier (LCID) for a name in any ASCII letter case, or 0 for null and for a
// name that is not in the table.
LCID FindLocaleId(const wchar_t* name);

}  // namespace kelvo
