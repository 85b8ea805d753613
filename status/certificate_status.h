#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Both functions open a system store of the local machine read-only (CertOpenStore).

// Reads the certificate in `file` (CryptQueryObject) and returns an item of `kind`: present when
// the store contains that certificate (CertFindCertificateInStore with CERT_FIND_EXISTING). The
// details are the certificate's subject, issuer, thumbprint (SHA-1 hash) and end of validity,
// whether it has expired, and whether the store exists.
//
// The file may contain the certificate in binary, Base64 or hexadecimal form. If it contains
// several certificates in Base64, as a PEM file with a chain does, only the first is read. If the
// file is a PKCS #7 message or a serialized store, the item is unknown with CRYPT_E_NO_MATCH.
Item QueryCertificate(const char* kind, const WString& file, const wchar_t* storeName);

// Returns an item with the number of certificates in the store.
Item QueryStore(const char* kind, const wchar_t* storeName);

}  // namespace kelvo
