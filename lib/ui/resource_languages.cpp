#include "lib/ui/resource_languages.h"

#include <algorithm>

#include "lib/string/wstring.h"

namespace kelvo {

namespace {

// A resource's name: a text, or a number that travels as a pointer.
class ResourceName {
 public:
  void Record(const wchar_t* name) {
    isRecorded_ = true;
    // Windows frees a text when the enumeration ends.
    text_ = IS_INTRESOURCE(name) ? nullptr : name;
    number_ = name;
  }
  [[nodiscard]] bool IsRecorded() const { return isRecorded_; }
  [[nodiscard]] const wchar_t* Get() const { return text_.empty() ? number_ : text_.c_str(); }

 private:
  bool isRecorded_ = false;
  WString text_;
  const wchar_t* number_ = nullptr;
};

template <typename Content>
Content& InContext(LONG_PTR context) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the enumerations pass a pointer on as a number
  return *reinterpret_cast<Content*>(context);
}

BOOL CALLBACK RecordFirstName(HMODULE /*module*/, LPCWSTR /*type*/, LPWSTR name, LONG_PTR context) {
  InContext<ResourceName>(context).Record(name);
  return FALSE;
}

BOOL CALLBACK AppendLanguage(HMODULE /*module*/, LPCWSTR /*type*/, LPCWSTR /*name*/, WORD language,
                             LONG_PTR context) {
  InContext<std::vector<LANGID>>(context).push_back(language);
  return TRUE;
}

}  // namespace

std::vector<LANGID> GetStringResourceLanguages(HMODULE module) {
  std::vector<LANGID> languages;
  if (module == nullptr) {
    return languages;
  }
  ResourceName first;
  EnumResourceNamesW(module, RT_STRING, RecordFirstName, reinterpret_cast<LONG_PTR>(&first));
  if (first.IsRecorded()) {
    EnumResourceLanguagesW(module, RT_STRING, first.Get(), AppendLanguage,
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
