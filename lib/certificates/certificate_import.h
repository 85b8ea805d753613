#pragma once

#include <windows.h>

namespace kelvo {

// Adds the certificate in `file` to a local-machine system store. If the store already has that
// certificate, replaces it. Both strings are NUL-terminated. `storeName` is Windows' name for the
// store, such as "CA". The store must exist; changing it needs administrative rights.
//
// The file may hold the certificate in binary (DER), Base64 or hexadecimal form. The hexadecimal
// form must begin with "{ASN}". For a PFX file, a PKCS #7 message or a serialized store, adds
// nothing and returns 0. Do not pass a certificate revocation list (CRL) or a certificate trust
// list (CTL): the function would use the CRL_CONTEXT or CTL_CONTEXT as a CERT_CONTEXT.
//
// Returns 0 or the error code of the step that failed. The first step loads "crypt32.dll" and
// looks up all functions that are needed; if one of them is missing, no store changes. The other
// steps are CertOpenStore, CryptQueryObject and CertAddCertificateContextToStore. If
// CryptQueryObject fails, for example because the file cannot be read, the handle of the system
// store stays open. "crypt32.dll" always stays loaded.
//
// Before these steps, calls wsspi::SspiInitialize (lib/wsspi/sspi_loader.h) if SSPI is not yet
// initialized. Does not catch the wsspi::SspiException* that SspiInitialize may throw.
DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName);

// Windows' names for the stores that the two functions below use.
inline constexpr const wchar_t* kTrustedPublisherStore = L"TrustedPublisher";
inline constexpr const wchar_t* kIntermediateCaStore = L"CA";

// Calls ImportCertToSystemStore for "TrustedPublisher", the store of trusted publishers. Windows
// does not prompt before it installs a driver package that is signed with a certificate in this
// store. For every user of the computer, Windows also trusts other files that are signed with the
// certificate, such as scripts, macros and ClickOnce applications. Use a certificate with which
// only drivers are signed.
DWORD ImportCertToTrustedPublishers(const wchar_t* file);

// Calls ImportCertToSystemStore for "CA", the store of intermediate certification authorities.
DWORD ImportCertToIntermediateCA(const wchar_t* file);

}  // namespace kelvo
