#pragma once

#include <windows.h>

#include <vector>

namespace kelvo {

// Returns the languages of the first RT_STRING resource in `module`. The languages are in the order
// of EnumResourceLanguagesW. The other RT_STRING resources are assumed to have the same languages.
// Returns an empty list for null and for a module without RT_STRING resources.
std::vector<LANGID> GetStringResourceLanguages(HMODULE module);

// Returns the language in which to load resources: `requested` when `offered` contains it;
// otherwise the first language in `offered` that has the same primary language (PRIMARYLANGID) as
// `requested`; otherwise the first English language in `offered`; otherwise the first language in
// `offered`. Returns 0 when `offered` is empty.
LANGID ChooseResourceLanguage(const std::vector<LANGID>& offered, LANGID requested);

}  // namespace kelvo
