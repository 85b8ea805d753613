#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// QueryCertificate and QueryStore open the local machine's system store `storeName` read-only
// (CertOpenStore).

// Reads the certificate in `file` (CryptQueryObject) and returns an item whose kind is `kind`. The
// state is kPresent when the store contains this certificate (CertFindCertificateInStore with
// CERT_FIND_EXISTING). The state is kAbsent when the store does not contain the certificate or does
// not exist. The details are the certificate's subject, issuer, thumbprint (SHA-1 hash) and
// expiration time, whether the certificate has expired, and whether the store exists. When the
// certificate or its thumbprint cannot be read, or when an existing store cannot be opened, the
// state is kUnknown and the details are "error_code" and "error_text" (UnknownItem).
//
// The file may contain the certificate in binary (DER), Base64 or hexadecimal form. The hexadecimal
// form must begin with "{ASN}". If the file contains several certificates in Base64, as a PEM file
// with a chain does, only the first is read. If the file is a PKCS #7 message or a serialized
// store, the state is kUnknown and the error code is CRYPT_E_NO_MATCH.
Item QueryCertificate(const char* kind, const WString& file, const wchar_t* storeName);

// Returns an item with the number of certificates in the store.
Item QueryStore(const char* kind, const wchar_t* storeName);

}  // namespace kelvo
