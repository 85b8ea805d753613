#pragma once

#include <windows.h>

namespace kelvo {

// Returns one class of information about a token (GetTokenInformation). The structure and the data
// to which it points are in one memory block, which the caller frees with LocalFree. The token
// handle needs TOKEN_QUERY or, for TokenSource, TOKEN_QUERY_SOURCE. When the token cannot be read
// or memory runs out, traces the failure (lib/trace/trace_sink.h) and returns null.
//
// GetFromToken first asks GetTokenInformation for the size of the data. For some classes whose data
// has a fixed size, such as TokenElevation, this first call of GetTokenInformation fails with an
// error other than ERROR_INSUFFICIENT_BUFFER. Then GetFromToken also traces the failure and returns
// null. To query such a class, call GetTokenInformation yourself.
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
