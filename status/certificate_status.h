#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// What a certificate says of itself, and whether a store holds it.
struct CertificateFacts {
  DWORD error = ERROR_SUCCESS;  // why the file or the store could not be read
  bool isStoreThere = false;
  bool isInStore = false;
  WString subject;
  WString issuer;
  WString thumbprint;  // SHA-1, in hexadecimal digits
  FILETIME validUntil{};
};

// Reads the certificate in `file` and looks for it, by its SHA-1 hash, in a system store of the
// local machine, which is opened read-only (CryptQueryObject, CertFindCertificateInStore). The file
// must hold one certificate, in binary, Base64 or hexadecimal form: for a collection the error is
// CRYPT_E_NO_MATCH.
CertificateFacts QueryCertificate(const wchar_t* file, const wchar_t* storeName);

// Returns the item for a certificate: present when the store holds it. `now` is the time by which
// it has expired or not.
Item DescribeCertificate(const char* kind, const WString& file, const CertificateFacts& facts,
                         FILETIME now);

// The number of certificates in a system store of the local machine.
struct StoreFacts {
  DWORD error = ERROR_SUCCESS;  // ERROR_FILE_NOT_FOUND when there is no such store
  DWORD certificates = 0;
};

StoreFacts QueryStore(const wchar_t* storeName);

Item DescribeStore(const char* kind, const wchar_t* storeName, const StoreFacts& facts);

}  // namespace kelvo
