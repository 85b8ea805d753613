#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// A certificate's own words, and whether a store has it.
struct CertificateFacts {
  DWORD error = ERROR_SUCCESS;  // why the file or the store could not be looked at
  bool isStoreThere = false;
  bool isInStore = false;
  WString subject;
  WString issuer;
  WString thumbprint;  // SHA-1, in hexadecimal digits
  FILETIME validUntil{};
};

// Looks for the certificate of a file, by its SHA-1 hash, in a system store of the local machine,
// which is opened read-only (CryptQueryObject, CertFindCertificateInStore). The file holds one
// certificate, binary or in Base64; a collection is refused with CRYPT_E_NO_MATCH.
CertificateFacts QueryCertificate(const wchar_t* file, const wchar_t* storeName);

// `now` decides whether the certificate has expired.
Item DescribeCertificate(const char* kind, const WString& file, const CertificateFacts& facts,
                         FILETIME now);

// How many certificates a system store of the local machine holds.
struct StoreFacts {
  DWORD error = ERROR_SUCCESS;  // ERROR_FILE_NOT_FOUND when there is no such store
  DWORD certificates = 0;
};

StoreFacts QueryStore(const wchar_t* storeName);

Item DescribeStore(const char* kind, const wchar_t* storeName, const StoreFacts& facts);

}  // namespace kelvo
