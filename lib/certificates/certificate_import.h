#pragma once

#include <windows.h>

namespace kelvo {

// Puts the certificate in `file` into a system store of the local machine, in place of an equal one
// that is there; both texts NUL-terminated, the store named as Windows names it ("CA"). The file
// may hold it binary (DER), as Base64 or as hexadecimal text. A file that holds a collection (a
// PKCS #7 message, a serialized store) is accepted and adds nothing; one that holds a revocation or
// trust list is not meant to be given. The store must exist and needs administrative rights.
//
// Returns 0, or the error code of the call that failed (CertOpenStore, CryptQueryObject,
// CertAddCertificateContextToStore). When the file cannot be read, the opened store stays open.
// Loads the security support interface first and lets its wsspi::SspiException* pass.
DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName);

inline constexpr const wchar_t* kTrustedPublisherStore = L"TrustedPublisher";
inline constexpr const wchar_t* kIntermediateCaStore = L"CA";

// Into "TrustedPublisher": whose signed driver packages are installed without a question.
DWORD ImportCertToTrustedPublishers(const wchar_t* file);

// Into "CA": the intermediate certification authorities.
DWORD ImportCertToIntermediateCA(const wchar_t* file);

}  // namespace kelvo
