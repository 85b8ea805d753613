#include "lib/security/token_information.h"

#include "lib/platform/owned.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

bool Read(HANDLE token, TOKEN_INFORMATION_CLASS kind, OwnedLocalMemory<void>& buffer) {
  DWORD size = 0;
  if (!internal::Check(GetTokenInformation(token, kind, nullptr, 0, &size) != FALSE ||
                           GetLastError() == ERROR_INSUFFICIENT_BUFFER,
                       L"GetFromToken GetTokenInformation Size Failed")) {
    return false;
  }
  buffer.reset(LocalAlloc(LPTR, size));
  return internal::Check(
      (buffer && GetTokenInformation(token, kind, buffer.get(), size, &size) != FALSE),
      L"GetFromToken GetTokenInformation Failed");
}

}  // namespace

void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind) {
  OwnedLocalMemory<void> buffer;
  return GuardedAnswer(false, [&] { return Read(token, kind, buffer); }) ? buffer.release()
                                                                         : nullptr;
}

}  // namespace kelvo
