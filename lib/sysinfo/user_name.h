#pragma once

#include <windows.h>

// security.h wants to be told who includes it.
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
// (GetUserNameExW). Empty for NameUnknown and on failure, as for every format but NameSamCompatible
// when the account is not a domain's. Loads "secur32.dll" for the call, by this name alone, so that
// the process's search order decides which file that is; without it the result is empty.
WString GetUserNameInFormat(EXTENDED_NAME_FORMAT format);

// Returns the user principal name, such as "name@domain" (GetUserNameInFormat with
// NameUserPrincipal). Where there is none, as outside a domain, returns the account's name when it
// has at most 100 characters, otherwise an empty string.
WString GetUserNameFQ();

}  // namespace kelvo
