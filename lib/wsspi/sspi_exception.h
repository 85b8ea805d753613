#pragma once

#include <array>
#include <cstdint>

#include "lib/string/wstring.h"

namespace wsspi {

// The error codes. Each code is also the index of its text in kSspiErrorTexts.
enum SspiErrorCode : std::int32_t {
  ErrorSuccess = 0,
  ErrorNotInitialized = 1,
  ErrorNoLibrary = 2,
  ErrorNoPackage = 3,
  ErrorPackageEnumerationFailed = 4,
  ErrorNoSecurityInterface = 5,
  ErrorNoCredentials = 6,
  ErrorNoMemory = 7,
  ErrorNullPointer = 8,
  ErrorAuthFailed = 9,
  ErrorImpersonationFailed = 10,
  ErrorRevertToSelfFailed = 11,
  ErrorInvalidArrayIndex = 12,
  ErrorUnknown = 13,
};

// The name and the meaning of each SspiErrorCode, indexed by the code.
inline constexpr std::array<const wchar_t*, 14> kSspiErrorTexts = {
    L"ErrorSuccess: no errors",
    L"ErrorNotInitialized: SspiInitialize() was not called",
    L"ErrorNoLibrary: provider dll was not found",
    L"ErrorNoPackage: no package was found",
    L"ErrorPackageEnumerationFailed: EnumerateSecurityPackages() failed",
    L"ErrorNoSecurityInterface: failed to setup security interface",
    L"ErrorNoCredentials: no credentials could be obtained",
    L"ErrorNoMemory: not enough memory to complete the operation",
    L"ErrorNullPointer: an invalid null pointer was passed",
    L"ErrorAuthFailed: authentication failed",
    L"ErrorImpersonationFailed: impersonation failed",
    L"ErrorRevertToSelfFailed: failed to revert to original security context",
    L"ErrorInvalidArrayIndex: array index was out of bounds",
    L"ErrorUnknown: unknown error",
};

// The exception for a failure of the security support provider interface (SSPI). It is allocated
// with new and thrown as a pointer; the code that catches the pointer must delete the exception.
struct SspiException {
  // A null `atFile` is stored as an empty string. An `errorCode` above 16 is stored as 16; any
  // other code is stored unchanged.
  SspiException(const wchar_t* atFile, std::uint32_t atLine, std::int32_t errorCode,
                std::uint32_t errorDetail);

  // The source file and line that are reported as the place of the failure.
  kelvo::WString file;
  std::uint32_t line;
  // The constructor's `errorCode`, or 16 if `errorCode` was above 16. Only codes from 0 to 13 have
  // a text: check the code before you use it as an index into kSspiErrorTexts.
  std::int32_t code;
  // The error code of the call that failed, or 0.
  std::uint32_t detail;
};

}  // namespace wsspi
