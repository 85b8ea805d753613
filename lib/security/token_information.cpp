#include "lib/security/token_information.h"

#include "lib/platform/owned.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

bool Read(HANDLE token, TOKEN_INFORMATION_CLASS kind, OwnedLocalMemory<void>& buffer) {
  DWORD size = 0;
  if (GetTokenInformation(token, kind, nullptr, 0, &size) == FALSE &&
      GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    return internal::StepFailed(L"GetFromToken GetTokenInformation Size Failed");
  }
  buffer.reset(LocalAlloc(LPTR, size));
  return (buffer && GetTokenInformation(token, kind, buffer.get(), size, &size) != FALSE) ||
         internal::StepFailed(L"GetFromToken GetTokenInformation Failed");
}

}  // namespace

void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind) {
  OwnedLocalMemory<void> buffer;
  return internal::GuardedAnswer(false, [&] { return Read(token, kind, buffer); })
             ? buffer.release()
             : nullptr;
}

}  // namespace kelvo
