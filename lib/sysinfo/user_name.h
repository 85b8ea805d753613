#pragma once

#include <windows.h>

// security.h requires one of its SECURITY_ macros.
#ifndef SECURITY_WIN32
#define SECURITY_WIN32
#endif
#include <security.h>

#include "lib/string/wstring.h"

namespace kelvo {

// The user that the calling thread runs as.

// Returns the name of the user's account, without its domain (GetUserNameW); empty on failure.
WString GetAccountName();

// Returns the user's name in a format such as NameSamCompatible ("DOMAIN\name"), of any length
// (GetUserNameExW). Empty for NameUnknown and on failure, as for a local account in every format
// but NameSamCompatible. Loads "secur32.dll" by name for the call, so the process's search order
// decides which file that is; without it, the result is empty.
WString GetUserNameInFormat(EXTENDED_NAME_FORMAT format);

// Returns the user principal name, such as "name@domain" (GetUserNameInFormat with
// NameUserPrincipal). When there is none, as outside a domain, returns the account name, or an
// empty string if that has more than 100 characters.
WString GetUserNameFQ();

}  // namespace kelvo
