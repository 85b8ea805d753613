#include "status/certificate_status.h"

#include <array>

#include "lib/certificates/certificate_handles.h"
#include "lib/string/format_text.h"
#include "lib/string/hex_text.h"

namespace kelvo {

namespace {

OwnedCertificateStore OpenStore(const wchar_t* name) {
  constexpr DWORD kFlags =
      CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_OPEN_EXISTING_FLAG | CERT_STORE_READONLY_FLAG;
  return OwnedCertificateStore(CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, kFlags, name));
}

OwnedCertificate ReadCertificate(const WString& file) {
  const void* context = nullptr;
  if (CryptQueryObject(CERT_QUERY_OBJECT_FILE, file.c_str(), CERT_QUERY_CONTENT_FLAG_CERT,
                       CERT_QUERY_FORMAT_FLAG_ALL, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                       &context) == FALSE) {
    return {};
  }
  return OwnedCertificate(static_cast<PCCERT_CONTEXT>(context));
}

bool IsInStore(HCERTSTORE store, PCCERT_CONTEXT certificate) {
  const OwnedCertificate found(CertFindCertificateInStore(
      store, X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, 0, CERT_FIND_EXISTING, certificate, nullptr));
  return static_cast<bool>(found);
}

WString Name(PCCERT_CONTEXT certificate, DWORD flags) {
  constexpr DWORD kType = CERT_NAME_SIMPLE_DISPLAY_TYPE;
  // CertGetNameStringW counts the terminator in its result and in its last argument.
  const DWORD length = CertGetNameStringW(certificate, kType, flags, nullptr, nullptr, 0);
  WString name(length, L'\0');
  CertGetNameStringW(certificate, kType, flags, nullptr, name.data(), length);
  return {name.c_str()};
}

// Returns an empty string when Windows cannot compute the hash. In that case, GetLastError returns
// the error code.
WString Thumbprint(PCCERT_CONTEXT certificate) {
  std::array<BYTE, 20> hash{};  // SHA-1
  DWORD size = sizeof(hash);
  if (CertGetCertificateContextProperty(certificate, CERT_SHA1_HASH_PROP_ID, hash.data(), &size) ==
      FALSE) {
    return {};
  }
  return BytesToHex(hash.data(), hash.size());
}

WString TimeText(FILETIME time) {
  SYSTEMTIME parts{};
  FileTimeToSystemTime(&time, &parts);
  return FormatText(L"%04u-%02u-%02uT%02u:%02u:%02uZ", parts.wYear, parts.wMonth, parts.wDay,
                    parts.wHour, parts.wMinute, parts.wSecond);
}

bool HasExpired(PCCERT_CONTEXT certificate) {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  return CompareFileTime(&certificate->pCertInfo->NotAfter, &now) < 0;
}

Detail StoreDetail(bool isThere) {
  return {"store_exists", isThere, isThere ? L"" : L"no such store"};
}

}  // namespace

Item QueryCertificate(const char* kind, const WString& file, const wchar_t* storeName) {
  const OwnedCertificate owned = ReadCertificate(file);
  PCCERT_CONTEXT const certificate = owned.get();
  const WString thumbprint = owned ? Thumbprint(certificate) : WString();
  if (thumbprint.empty()) {
    return UnknownItem(kind, file, GetLastError());
  }
  const OwnedCertificateStore store = OpenStore(storeName);
  if (const DWORD error = GetLastError(); !store && error != ERROR_FILE_NOT_FOUND) {
    return UnknownItem(kind, file, error);
  }
  const bool isThere = store && IsInStore(store.get(), certificate);
  const bool hasExpired = HasExpired(certificate);
  return {kind,
          isThere ? State::kPresent : State::kAbsent,
          file,
          {TextDetail("subject", L"subject", Name(certificate, 0)),
           TextDetail("issuer", L"issuer", Name(certificate, CERT_NAME_ISSUER_FLAG)),
           TextDetail("thumbprint", L"thumbprint", thumbprint),
           TextDetail("valid_until", L"valid until", TimeText(certificate->pCertInfo->NotAfter)),
           {"expired", hasExpired, hasExpired ? L"expired" : L""},
           StoreDetail(static_cast<bool>(store))}};
}

Item QueryStore(const char* kind, const wchar_t* storeName) {
  const OwnedCertificateStore store = OpenStore(storeName);
  if (const DWORD error = GetLastError(); !store && error != ERROR_FILE_NOT_FOUND) {
    return UnknownItem(kind, storeName, error);
  }
  DWORD count = 0;
  // CertEnumCertificatesInStore frees the context that is passed to it.
  PCCERT_CONTEXT certificate = nullptr;
  while (store &&
         (certificate = CertEnumCertificatesInStore(store.get(), certificate)) != nullptr) {
    ++count;
  }
  return {kind,
          State::kInfo,
          storeName,
          {{"certificates", count,
            FormatText(count == 1 ? L"%u certificate" : L"%u certificates", count)},
           StoreDetail(static_cast<bool>(store))}};
}

}  // namespace kelvo
