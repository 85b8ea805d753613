#pragma once

#include <windows.h>

#include <vector>

namespace kelvo {

// Returns the languages of the first string table of `module`, in the order of
// EnumResourceLanguagesW; empty for a null module and for one without string tables. Other tables
// are assumed to have the same languages.
std::vector<LANGID> GetStringResourceLanguages(HMODULE module);

// Returns the language in which to load resources: `requested` when it is offered; else the first
// with the same primary language; else the first English one; else the first of the list. 0 when
// the list is empty.
LANGID ChooseResourceLanguage(const std::vector<LANGID>& offered, LANGID requested);

}  // namespace kelvo
