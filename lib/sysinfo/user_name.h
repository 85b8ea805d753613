#pragma once

#include <windows.h>

// security.h requires that one of its SECURITY_ macros is defined.
#ifndef SECURITY_WIN32
#define SECURITY_WIN32
#endif
#include <security.h>

#include "lib/string/wstring.h"

namespace kelvo {

// These functions return a name of the user under whose account the calling thread runs.

// Returns the name of the user's account, without the domain (GetUserNameW). Returns an empty
// string on failure.
WString GetAccountName();

// Returns the user's name in a format such as NameSamCompatible ("DOMAIN\name"). The length of the
// name is not limited. Calls GetUserNameExW of "secur32.dll". Loads this DLL without a path, so the
// process's DLL search order decides which file is loaded. Then frees the DLL (FreeLibrary).
// Returns an empty string when `format` is NameUnknown, when the DLL does not load or lacks
// GetUserNameExW, and when GetUserNameExW fails. According to Microsoft's documentation, only
// NameSamCompatible is supported for a local account.
WString GetUserNameInFormat(EXTENDED_NAME_FORMAT format);

// Returns the first of these names that can be read, or an empty string when neither can be read:
//   - The user principal name, such as "name@domain" (GetUserNameInFormat with NameUserPrincipal).
//     A local account has none.
//   - The account name (GetUserNameW), if it has at most 100 characters.
WString GetUserNameFQ();

}  // namespace kelvo
