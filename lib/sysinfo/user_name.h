#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The name of the account that the calling thread runs as (GetUserNameW); empty on failure.
WString GetAccountName();

// The account's user principal name, such as "name@domain" (GetUserNameExW of "secur32.dll", loaded
// for the call). Where there is none, as outside a domain, the account's name when it has at most
// 100 characters. Empty on failure.
WString GetUserNameFQ();

}  // namespace kelvo
