#pragma once

#include <windows.h>

namespace kelvo {

// Adds the certificate in `file` to a system store of the local machine, replacing an equal one.
// Both strings are NUL-terminated. `storeName` is Windows' name for the store, such as "CA"; the
// store must exist, and changing it needs administrative rights.
//
// The file may hold the certificate in binary (DER), Base64 or hexadecimal form. A file that holds
// a collection (a PKCS #7 message, a serialized store) or a PFX is accepted and adds nothing. Do
// not pass a revocation or trust list: its context would be used as a certificate's.
//
// Returns 0, or the error code of the call that failed: CertOpenStore, CryptQueryObject,
// CertAddCertificateContextToStore, or loading "crypt32.dll" and looking its functions up, which
// come before any change. When the file cannot be read, the opened store stays open; "crypt32.dll"
// stays loaded. Loads the security support interface first (lib/wsspi/sspi_loader.h) and does not
// catch the wsspi::SspiException* that this may throw.
DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName);

// Windows' names of the stores of the two functions below.
inline constexpr const wchar_t* kTrustedPublisherStore = L"TrustedPublisher";
inline constexpr const wchar_t* kIntermediateCaStore = L"CA";

// ImportCertToSystemStore for "TrustedPublisher": the publishers whose signed driver packages
// Windows installs without a question. It also trusts what else they sign, such as scripts, macros
// and ClickOnce applications, for every user of the computer: use a certificate that signs drivers
// only.
DWORD ImportCertToTrustedPublishers(const wchar_t* file);

// ImportCertToSystemStore for "CA": the intermediate certification authorities.
DWORD ImportCertToIntermediateCA(const wchar_t* file);

}  // namespace kelvo
