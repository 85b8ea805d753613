#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// How a localised file's path contains its language. NAME is a locale name, such as "de-DE".
enum class LocalisedFileForm {
  kFolder,  // FOLDER\resources\NAME\file.ext
  kSuffix,  // FOLDER\file_NAME.ext; the extension begins at the last dot
};

// Null strings count as empty. `folder` may or may not end in a backslash.

// Returns the path of a file for one language, whether or not the file exists. The locale name is
// that of GetLocaleInfoW (LOCALE_SNAME). Empty for a language without a name and for an empty file
// name.
//   // C:\App\resources\de-DE\texts.dll on a German Windows
//   const WString path = GetLocalisedFilePath(
//       L"C:\\App", L"texts.dll", GetUserDefaultUILanguage(), LocalisedFileForm::kFolder);
WString GetLocalisedFilePath(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                             LocalisedFileForm form);

// Returns the path of the file for `language`. When that file does not exist, returns the first
// that does, in this order: same primary language, English (United States), another English, any
// language. Of several, returns the first by name. Empty when there is none. GetLocaleInfoEx
// (looked up at run time) gives the language of a file; without it, only the exact file is found. A
// name such as "en-DE", for which Windows has no LCID, counts as its part before the "-".
// LANG_NEUTRAL, LOCALE_USER_DEFAULT and LOCALE_SYSTEM_DEFAULT are resolved to the languages that
// they mean.
WString FindLocalisedFile(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                          LocalisedFileForm form);

}  // namespace kelvo
