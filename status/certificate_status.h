#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Both functions open a system store of the local machine read-only (CertOpenStore).

// Reads the certificate in `file` and returns an item of `kind`, present when the store holds
// the same certificate (CryptQueryObject, CertFindCertificateInStore with CERT_FIND_EXISTING). Its
// details are subject, issuer, thumbprint (the SHA-1 hash), the end of its validity, and whether it
// has expired.
//
// The file holds one certificate in binary, Base64 or hexadecimal form; of several in Base64, as in
// a PEM file with a chain, only the first is read. For a collection (PKCS #7, a serialized store)
// the item is unknown with CRYPT_E_NO_MATCH.
Item QueryCertificate(const char* kind, const WString& file, const wchar_t* storeName);

// Returns an item with the number of certificates in the store.
Item QueryStore(const char* kind, const wchar_t* storeName);

}  // namespace kelvo
