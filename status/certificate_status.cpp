#include "status/certificate_status.h"

#include <array>

#include "lib/certificates/certificate_handles.h"
#include "lib/string/format_text.h"

namespace kelvo {

namespace {

using Hash = std::array<BYTE, 20>;  // SHA-1

OwnedCertificateStore OpenStore(const wchar_t* name) {
  constexpr DWORD kFlags =
      CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_OPEN_EXISTING_FLAG | CERT_STORE_READONLY_FLAG;
  return OwnedCertificateStore(CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, kFlags, name));
}

bool ReadCertificate(const wchar_t* file, OwnedCertificate& certificate) {
  const void* context = nullptr;
  if (CryptQueryObject(CERT_QUERY_OBJECT_FILE, file,
                       CERT_QUERY_CONTENT_FLAG_CERT | CERT_QUERY_CONTENT_FLAG_SERIALIZED_CERT,
                       CERT_QUERY_FORMAT_FLAG_ALL, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                       &context) == FALSE) {
    return false;
  }
  certificate.reset(static_cast<PCCERT_CONTEXT>(context));
  return true;
}

WString Name(PCCERT_CONTEXT certificate, DWORD flags) {
  constexpr DWORD kType = CERT_NAME_SIMPLE_DISPLAY_TYPE;
  // Lengths count the terminator.
  const DWORD length = CertGetNameStringW(certificate, kType, flags, nullptr, nullptr, 0);
  WString name(length, L'\0');
  CertGetNameStringW(certificate, kType, flags, nullptr, name.data(), length);
  return {name.c_str()};
}

bool FillFromCertificate(PCCERT_CONTEXT certificate, Hash& hash, CertificateFacts& facts) {
  DWORD size = sizeof(hash);
  if (CertGetCertificateContextProperty(certificate, CERT_SHA1_HASH_PROP_ID, hash.data(), &size) ==
      FALSE) {
    return false;
  }
  for (const BYTE byte : hash) {
    facts.thumbprint += FormatText(L"%02X", byte);
  }
  facts.subject = Name(certificate, 0);
  facts.issuer = Name(certificate, CERT_NAME_ISSUER_FLAG);
  facts.validUntil = certificate->pCertInfo->NotAfter;
  return true;
}

bool IsInStore(HCERTSTORE store, Hash& hash) {
  const CRYPT_HASH_BLOB wanted{static_cast<DWORD>(hash.size()), hash.data()};
  const OwnedCertificate found(CertFindCertificateInStore(
      store, X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, 0, CERT_FIND_SHA1_HASH, &wanted, nullptr));
  return static_cast<bool>(found);
}

WString TimeText(FILETIME time) {
  SYSTEMTIME parts{};
  FileTimeToSystemTime(&time, &parts);
  return FormatText(L"%04u-%02u-%02uT%02u:%02u:%02uZ", parts.wYear, parts.wMonth, parts.wDay,
                    parts.wHour, parts.wMinute, parts.wSecond);
}

}  // namespace

CertificateFacts QueryCertificate(const wchar_t* file, const wchar_t* storeName) {
  CertificateFacts facts;
  OwnedCertificate certificate;
  Hash hash{};
  if (!ReadCertificate(file, certificate) || !FillFromCertificate(certificate.get(), hash, facts)) {
    facts.error = GetLastError();
    return facts;
  }
  const OwnedCertificateStore store = OpenStore(storeName);
  if (store) {
    facts.isStoreThere = true;
    facts.isInStore = IsInStore(store.get(), hash);
  } else if (const DWORD error = GetLastError(); error != ERROR_FILE_NOT_FOUND) {
    facts.error = error;
  }
  return facts;
}

Item DescribeCertificate(const char* kind, const WString& file, const CertificateFacts& facts,
                         FILETIME now) {
  if (facts.error != ERROR_SUCCESS) {
    return UnknownItem(kind, file, facts.error);
  }
  const bool hasExpired = CompareFileTime(&facts.validUntil, &now) < 0;
  return {kind,
          facts.isInStore ? State::kPresent : State::kAbsent,
          file,
          {TextDetail("subject", L"subject", facts.subject),
           TextDetail("issuer", L"issuer", facts.issuer),
           TextDetail("thumbprint", L"thumbprint", facts.thumbprint),
           TextDetail("valid_until", L"valid until", TimeText(facts.validUntil)),
           {"expired", hasExpired, hasExpired ? L"expired" : L""},
           {"store_exists", facts.isStoreThere, facts.isStoreThere ? L"" : L"no such store"}}};
}

StoreFacts QueryStore(const wchar_t* storeName) {
  StoreFacts facts;
  const OwnedCertificateStore store = OpenStore(storeName);
  if (!store) {
    facts.error = GetLastError();
    return facts;
  }
  // Each call frees the context that it is given.
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store.get(), certificate)) != nullptr) {
    ++facts.certificates;
  }
  return facts;
}

Item DescribeStore(const char* kind, const wchar_t* storeName, const StoreFacts& facts) {
  const bool isThere = facts.error != ERROR_FILE_NOT_FOUND;
  if (isThere && facts.error != ERROR_SUCCESS) {
    return UnknownItem(kind, storeName, facts.error);
  }
  return {kind,
          State::kTold,
          storeName,
          {{"certificates", facts.certificates,
            FormatText(facts.certificates == 1 ? L"%u certificate" : L"%u certificates",
                       facts.certificates)},
           {"store_exists", isThere, isThere ? L"" : L"no such store"}}};
}

}  // namespace kelvo
