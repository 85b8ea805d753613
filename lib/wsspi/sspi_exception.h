#pragma once

#include <array>
#include <cstdint>

#include "lib/string/wstring.h"

namespace wsspi {

// What failed; an index into kSspiErrorTexts.
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

// The name and the meaning of each SspiErrorCode, with the code as index.
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

// Thrown when the security support interface fails: allocated with new and thrown as a pointer;
// whoever catches it deletes it.
struct SspiException {
  // A null `atFile` counts as empty. A code above 16 is stored as 16, any other as given: check a
  // code before you use it as an index into kSspiErrorTexts.
  SspiException(const wchar_t* atFile, std::uint32_t atLine, std::int32_t errorCode,
                std::uint32_t errorDetail);

  // Where it was thrown.
  kelvo::WString file;
  std::uint32_t line;
  // The code as given, or 16 when it was higher. An index into kSspiErrorTexts only from 0 to 13.
  std::int32_t code;
  // The failing call's own error code, or 0.
  std::uint32_t detail;
};

}  // namespace wsspi
