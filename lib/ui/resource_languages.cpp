#include "lib/ui/resource_languages.h"

#include <algorithm>
#include <new>

namespace kelvo {

namespace {

// The callbacks must not throw, because Windows calls them. When memory runs out, AppendLanguage
// sets `isOutOfMemory`. GetStringResourceLanguages then throws std::bad_alloc after the
// enumeration.
struct Enumeration {
  std::vector<LANGID> languages;
  bool isOutOfMemory = false;
};

BOOL CALLBACK AppendLanguage(HMODULE /*module*/, LPCWSTR /*type*/, LPCWSTR /*name*/, WORD language,
                             LONG_PTR context) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the context is a pointer, passed as a number
  auto& enumeration = *reinterpret_cast<Enumeration*>(context);
  try {
    enumeration.languages.push_back(language);
    return TRUE;
  } catch (...) {
    enumeration.isOutOfMemory = true;
    return FALSE;
  }
}

// Calls EnumResourceLanguagesW here because `name` is valid only during the callback. Returns FALSE
// to stop after the first name.
BOOL CALLBACK AppendLanguagesOfFirst(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR context) {
  EnumResourceLanguagesW(module, type, name, AppendLanguage, context);
  return FALSE;
}

}  // namespace

std::vector<LANGID> GetStringResourceLanguages(HMODULE module) {
  Enumeration enumeration;
  if (module != nullptr) {
    EnumResourceNamesW(module, RT_STRING, AppendLanguagesOfFirst,
                       reinterpret_cast<LONG_PTR>(&enumeration));
  }
  if (enumeration.isOutOfMemory) {
    throw std::bad_alloc();
  }
  return std::move(enumeration.languages);
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
