#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Files that exist once for each language. NAME is a language's name, such as "de-DE".
enum class LocalisedFileForm {
  kFolder,  // FOLDER\resources\NAME\file.ext
  kSuffix,  // FOLDER\file_NAME.ext; the extension is what follows from the last dot on
};

// Null pointers count as empty strings; `folder` may end in a backslash or not.

// Returns the path of a file for one language, whether it exists or not. The language's name is
// that of GetLocaleInfoW (LOCALE_SNAME). Empty for a language without a name and for an empty file
// name.
//   // C:\App\resources\de-DE\texts.dll on a German Windows
//   const WString path = GetLocalisedFilePath(
//       L"C:\\App", L"texts.dll", GetUserDefaultUILanguage(), LocalisedFileForm::kFolder);
WString GetLocalisedFilePath(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                             LocalisedFileForm form);

// Returns the path of the file for `language`. When that file does not exist, returns the first
// that does: in the same primary language, in English (United States), in another English, in any
// language; among equals, the first by name. Empty when there is none. GetLocaleInfoEx, looked up
// at run time, says which language a file is for; without it only the exact file is found. A name
// such as "en-DE", which has no number of its own on Windows, counts as its part before the "-".
// LANG_NEUTRAL, LOCALE_USER_DEFAULT and LOCALE_SYSTEM_DEFAULT are the languages that they stand
// for.
WString FindLocalisedFile(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                          LocalisedFileForm form);

}  // namespace kelvo
