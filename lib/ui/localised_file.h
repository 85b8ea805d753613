#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// The form of the path of a localised file. NAME is the locale name of the file's language, such as
// "de-DE".
enum class LocalisedFileForm {
  kFolder,  // FOLDER\resources\NAME\file.ext
  kSuffix,  // FOLDER\file_NAME.ext; the extension begins at the last dot
};

// For both functions, a null string counts as empty, and a backslash at the end of `folder` is
// optional.

// Returns the path of a file for one language, whether or not the file exists. GetLocaleInfoW
// (LOCALE_SNAME) gives the locale name for `language`. Returns an empty string when `language`
// has no locale name or `fileName` is empty.
//   // C:\App\resources\de-DE\texts.dll on a German Windows
//   const WString path = GetLocalisedFilePath(
//       L"C:\\App", L"texts.dll", GetUserDefaultUILanguage(), LocalisedFileForm::kFolder);
WString GetLocalisedFilePath(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                             LocalisedFileForm form);

// Returns the path of the file for `language`. If that file does not exist, chooses among the
// existing files for other locale names, in this order of preference: a file in the same primary
// language, in English (United States), in another variety of English, in any other language. Among
// files of the same rank, chooses the file whose locale name sorts first. Returns an empty string
// when no file is found. When `language` is LANG_NEUTRAL, LOCALE_USER_DEFAULT or
// LOCALE_SYSTEM_DEFAULT, uses the language that this constant stands for.
//
// The locale name in the path of an existing file determines the file's language. GetLocaleInfoEx
// (looked up at run time) converts the locale name to a language. When Windows lacks
// GetLocaleInfoEx, only the file for `language` itself is found. If Windows accepts a locale name
// but has no LCID for it (for example, "en-DE" on Windows 10), only the part of the name before the
// first "-" determines the language.
WString FindLocalisedFile(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                          LocalisedFileForm form);

}  // namespace kelvo
