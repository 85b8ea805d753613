#pragma once

#include <windows.h>

namespace kelvo {

// Adds the certificate in `file` to a local-machine system store, replacing an equal one. Both
// strings are NUL-terminated. `storeName` is Windows' name for the store, such as "CA". The store
// must exist; changing it needs administrative rights.
//
// The file may hold the certificate in binary (DER), Base64 or hexadecimal form. A collection (a
// PKCS #7 message, a serialized store) or a PFX file is accepted but adds nothing. Do not pass a
// revocation list or a trust list: its context would be used as a certificate context.
//
// Returns 0 or the error code of the call that failed: CertOpenStore, CryptQueryObject,
// CertAddCertificateContextToStore, or loading "crypt32.dll" and looking up its functions, which
// happens before any change. When the file cannot be read, the opened store stays open.
// "crypt32.dll" stays loaded. Loads the security support interface first (lib/wsspi/sspi_loader.h)
// and does not catch the wsspi::SspiException* that this may throw.
DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName);

// Windows' names for the stores that the two functions below use.
inline constexpr const wchar_t* kTrustedPublisherStore = L"TrustedPublisher";
inline constexpr const wchar_t* kIntermediateCaStore = L"CA";

// ImportCertToSystemStore for "TrustedPublisher": Windows does not prompt before it installs a
// driver package that one of these publishers signed. It also trusts what else they sign, such as
// scripts, macros and ClickOnce applications, for every user of the computer. Use a certificate
// that signs only drivers.
DWORD ImportCertToTrustedPublishers(const wchar_t* file);

// ImportCertToSystemStore for "CA": the intermediate certification authorities.
DWORD ImportCertToIntermediateCA(const wchar_t* file);

}  // namespace kelvo
