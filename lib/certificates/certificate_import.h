#pragma once

#include <windows.h>

namespace kelvo {

// Adds the certificate in `file` to a system store of the local machine, replacing an equal one.
// Both strings are NUL-terminated; the store has Windows' name for it ("CA"), must exist, and needs
// administrative rights.
//
// The file may hold the certificate in binary (DER), as Base64 or as hexadecimal text. A file that
// holds a collection (a PKCS #7 message, a serialized store) or a PFX is accepted and adds nothing.
// Do not pass a revocation or trust list: its context is taken for a certificate's.
//
// Returns 0, or the error code of the call that failed: CertOpenStore, CryptQueryObject,
// CertAddCertificateContextToStore, or the loading of "crypt32.dll" and the lookup of its
// functions, before anything is changed. When the file cannot be read, the opened store stays open;
// "crypt32.dll" stays loaded. Loads the security support interface first (lib/wsspi/sspi_loader.h)
// and lets its wsspi::SspiException* pass.
DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName);

inline constexpr const wchar_t* kTrustedPublisherStore = L"TrustedPublisher";
inline constexpr const wchar_t* kIntermediateCaStore = L"CA";

// ImportCertToSystemStore with the store "TrustedPublisher": the publishers whose signed driver
// packages are installed without a question.
DWORD ImportCertToTrustedPublishers(const wchar_t* file);

// ImportCertToSystemStore with the store "CA": the intermediate certification authorities.
DWORD ImportCertToIntermediateCA(const wchar_t* file);

}  // namespace kelvo
