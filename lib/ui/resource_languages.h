#pragma once

#include <windows.h>

#include <vector>

namespace kelvo {

// The languages in which `module` offers its first string table, in the order in which
// EnumResourceLanguagesW gives them; empty for a null module and one without string tables. The
// other tables are taken to stand in the same languages.
std::vector<LANGID> GetStringResourceLanguages(HMODULE module);

// The language to load resources in: `requested` itself; else the first with the same primary
// language; else the first English one; else the first of the list. 0 when the list is empty.
LANGID ChooseResourceLanguage(const std::vector<LANGID>& offered, LANGID requested);

}  // namespace kelvo
