#pragma once

#include <windows.h>

// security.h requires that one of its SECURITY_ macros is defined.
#ifndef SECURITY_WIN32
#define SECURITY_WIN32
#endif
#include <security.h>

#include "lib/string/wstring.h"

namespace kelvo {

// These functions return names of the user that the calling thread runs as.

// Returns the name of the user's account, without the domain (GetUserNameW); empty on failure.
WString GetAccountName();

// Returns the user's name, of any length, in a format such as NameSamCompatible ("DOMAIN\name").
// Calls GetUserNameExW of "secur32.dll". Loads that library by name for the duration of the call,
// so the process's search order decides which file is loaded. Returns an empty string for
// NameUnknown, when the library does not load or lacks GetUserNameExW, and when GetUserNameExW
// fails. For a local account, only NameSamCompatible succeeds.
WString GetUserNameInFormat(EXTENDED_NAME_FORMAT format);

// Returns the user principal name, such as "name@domain" (GetUserNameInFormat with
// NameUserPrincipal). When there is none, as for a user outside a domain, returns the account name,
// or an empty string when the account name has more than 100 characters.
WString GetUserNameFQ();

}  // namespace kelvo
