#pragma once

#include <windows.h>

#include <vector>

namespace kelvo {

// Returns the languages of the first string table of `module`, in the order of
// EnumResourceLanguagesW. The other tables are assumed to have the same languages. Returns an empty
// list for null and for a module without string tables.
std::vector<LANGID> GetStringResourceLanguages(HMODULE module);

// Returns the language in which to load resources: `requested` when `offered` contains it;
// otherwise the first language of `offered` with the primary language of `requested`; otherwise the
// first English language; otherwise the first language. Returns 0 when `offered` is empty.
LANGID ChooseResourceLanguage(const std::vector<LANGID>& offered, LANGID requested);

}  // namespace kelvo
