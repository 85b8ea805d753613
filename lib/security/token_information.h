#pragma once

#include <windows.h>

namespace kelvo {

// What GetTokenInformation tells of one class: a block of the class's record, with all that it
// points at, which the caller frees with LocalFree. Null, and a trace, when the token does not tell
// or memory is short. The token needs TOKEN_QUERY (TokenSource: TOKEN_QUERY_SOURCE).
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
