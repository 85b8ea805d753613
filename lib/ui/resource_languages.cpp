#include "lib/ui/resource_languages.h"

#include <algorithm>

namespace kelvo {

namespace {

BOOL CALLBACK AppendLanguage(HMODULE /*module*/, LPCWSTR /*type*/, LPCWSTR /*name*/, WORD language,
                             LONG_PTR languages) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the enumeration passes a pointer on as a number
  reinterpret_cast<std::vector<LANGID>*>(languages)->push_back(language);
  return TRUE;
}

// Ends the enumeration with the first name, which is valid only in here.
BOOL CALLBACK AppendLanguagesOfFirst(HMODULE module, LPCWSTR type, LPWSTR name,
                                     LONG_PTR languages) {
  EnumResourceLanguagesW(module, type, name, AppendLanguage, languages);
  return FALSE;
}

}  // namespace

std::vector<LANGID> GetStringResourceLanguages(HMODULE module) {
  std::vector<LANGID> languages;
  if (module != nullptr) {
    EnumResourceNamesW(module, RT_STRING, AppendLanguagesOfFirst,
                       reinterpret_cast<LONG_PTR>(&languages));
  }
  return languages;
}

LANGID ChooseResourceLanguage(const std::vector<LANGID>& offered, LANGID requested) {
  if (offered.empty()) {
    return 0;
  }
  if (std::find(offered.begin(), offered.end(), requested) != offered.end()) {
    return requested;
  }
  for (const int primary : {PRIMARYLANGID(requested), LANG_ENGLISH}) {
    const auto found = std::find_if(offered.begin(), offered.end(), [primary](LANGID language) {
      return PRIMARYLANGID(language) == primary;
    });
    if (found != offered.end()) {
      return *found;
    }
  }
  return offered.front();
}

}  // namespace kelvo
