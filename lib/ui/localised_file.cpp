#include "lib/ui/localised_file.h"

#include <string_view>

#include "lib/platform/module.h"
#include "lib/string/compare_no_case.h"
#include "lib/ui/locale_names.h"

namespace kelvo {

namespace {

// The parts of a path before and after the locale name.
struct PathPattern {
  WString folder;
  WString before;
  WString after;

  [[nodiscard]] WString With(const WString& name) const { return folder + before + name + after; }
};

PathPattern PatternOf(const WString& folder, const WString& fileName, LocalisedFileForm form) {
  WString parent = folder;
  if (!parent.empty() && !std::wstring_view(parent).ends_with(L'\\')) {
    parent += L"\\";
  }
  if (form == LocalisedFileForm::kFolder) {
    return {parent + L"resources\\", L"", WString(L"\\") + fileName};
  }
  const std::size_t dot = fileName.rfind(L".");
  const std::size_t base = dot != WString::npos ? dot : fileName.length();
  return {parent, fileName.substr(0, base) + L"_", fileName.substr(base)};
}

bool IsFile(const WString& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsNeutral(LANGID language) { return PRIMARYLANGID(language) == LANG_NEUTRAL; }

// Returns 0 when Windows gives no language, or LANG_INVARIANT, for the locale name.
LANGID NumberOf(const WString& name) {
  auto* const getInfo = KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), GetLocaleInfoEx);
  DWORD number = 0;
  constexpr int kNumberLength = sizeof(number) / sizeof(wchar_t);
  if (getInfo == nullptr || getInfo(name.c_str(), LOCALE_ILANGUAGE | LOCALE_RETURN_NUMBER,
                                    reinterpret_cast<wchar_t*>(&number), kNumberLength) == 0) {
    return 0;
  }
  const auto language = static_cast<LANGID>(number);
  return PRIMARYLANGID(language) != LANG_INVARIANT ? language : LANGID{0};
}

// Returns 0 when `name` is not the locale name of a language. For a well-formed name that has no
// LCID, Windows 10 gives a LANGID whose primary language is LANG_NEUTRAL. In this case, looks up
// only the part of `name` before the first "-". For example, returns LANG_ENGLISH for "en-DE", and
// 0 for "old" (from a file named "texts_old.dll").
LANGID LanguageOf(const WString& name) {
  const LANGID language = NumberOf(name);
  return language == 0 || !IsNeutral(language)
             ? language
             : PRIMARYLANGID(NumberOf(name.substr(0, name.find(L"-"))));
}

// Returns the language that a constant such as LANG_NEUTRAL or LOCALE_USER_DEFAULT stands for.
// Returns any other LANGID unchanged.
LANGID Resolved(LANGID language) {
  return IsNeutral(language) ? LanguageOf(GetLocaleInfoString(language, LOCALE_SNAME)) : language;
}

// Returns how poorly `language` matches `wanted`: from 0 (same primary language) to 3.
int Distance(LANGID language, LANGID wanted) {
  if (PRIMARYLANGID(language) == PRIMARYLANGID(wanted)) {
    return 0;
  }
  if (language == MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)) {
    return 1;
  }
  return PRIMARYLANGID(language) == LANG_ENGLISH ? 2 : 3;
}

// Ignores letter case in the same way as Windows file systems.
bool EqualsIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return CompareStringOrdinal(a.data(), static_cast<int>(a.length()), b.data(),
                              static_cast<int>(b.length()), TRUE) == CSTR_EQUAL;
}

// `found` is the name of a file or folder that FindFirstFileW has found. Returns the locale name
// that `found` contains. Returns an empty string when `found` does not fit the pattern. This can
// happen because FindFirstFileW also matches short (8.3) names, and because "*" also matches an
// empty string, as in "texts_.dll".
WString NameWithin(const WString& found, const PathPattern& pattern, LocalisedFileForm form) {
  if (form == LocalisedFileForm::kFolder) {
    return found;
  }
  const std::size_t around = pattern.before.length() + pattern.after.length();
  const std::wstring_view text = found;
  if (text.length() <= around ||
      !EqualsIgnoringCase(text.substr(0, pattern.before.length()), pattern.before) ||
      !EqualsIgnoringCase(text.substr(text.length() - pattern.after.length()), pattern.after)) {
    return {};
  }
  return WString(text.substr(pattern.before.length(), text.length() - around));
}

WString NearestName(const PathPattern& pattern, LANGID wanted, LocalisedFileForm form) {
  const WString suffix = form == LocalisedFileForm::kSuffix ? pattern.after : WString();
  const WString searched = pattern.folder + pattern.before + L"*" + suffix;
  WIN32_FIND_DATAW found{};
  const OwnedFileSearch search(FindFirstFileW(searched.c_str(), &found));
  WString nearest;
  int distance = 0;
  for (BOOL more = search ? TRUE : FALSE; more != FALSE;
       more = FindNextFileW(search.get(), &found)) {
    const WString name = NameWithin(found.cFileName, pattern, form);
    const LANGID language = name.empty() ? LANGID{0} : LanguageOf(name);
    if (language == 0 || !IsFile(pattern.With(name))) {
      continue;
    }
    const int candidate = Distance(language, wanted);
    if (nearest.empty() || candidate < distance ||
        (candidate == distance && CompareNoCase(name.c_str(), nearest.c_str()) < 0)) {
      nearest = name;
      distance = candidate;
    }
  }
  return nearest;
}

}  // namespace

WString GetLocalisedFilePath(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                             LocalisedFileForm form) {
  const WString file = fileName;
  const WString name = GetLocaleInfoString(language, LOCALE_SNAME);
  return file.empty() || name.empty() ? WString() : PatternOf(folder, file, form).With(name);
}

WString FindLocalisedFile(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                          LocalisedFileForm form) {
  WString exact = GetLocalisedFilePath(folder, fileName, language, form);
  if (!exact.empty() && IsFile(exact)) {
    return exact;
  }
  const WString file = fileName;
  const PathPattern pattern = PatternOf(folder, file, form);
  const WString nearest = file.empty() ? WString() : NearestName(pattern, Resolved(language), form);
  return nearest.empty() ? WString() : pattern.With(nearest);
}

}  // namespace kelvo
