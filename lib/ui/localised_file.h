#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Files that exist once for each language. NAME is a language's name, such as "de-DE".
enum class LocalisedFileForm {
  kFolder,  // FOLDER\resources\NAME\file.ext
  kSuffix,  // FOLDER\file_NAME.ext; the extension is what follows from the last dot on
};

// Null pointers count as empty texts, `folder` may end in a backslash or not, and std::bad_alloc is
// thrown when memory runs out.

// Returns the path of a file for one language, whether it exists or not. GetLocaleInfoString of the
// language and LOCALE_SNAME gives the name. Empty for a language without a name and for an empty
// file name.
WString GetLocalisedFilePath(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                             LocalisedFileForm form);

// Returns the path of the file for a language or, when it does not exist, for the nearest one: of
// the same primary language, in English (United States), in another English, in any language; of
// equally near ones the first by name. Empty when there is none. GetLocaleInfoEx, looked up at run
// time, tells which language a file is for; without it only the exact file is found.
WString FindLocalisedFile(const wchar_t* folder, const wchar_t* fileName, LANGID language,
                          LocalisedFileForm form);

}  // namespace kelvo
