#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <string>

namespace kelvo::test {

// The subjects of the certificates in a system store of the local machine, each ended by ";".
inline std::wstring SubjectsInStore(const wchar_t* name) {
  HCERTSTORE store =
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, name);
  std::wstring subjects;
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store, certificate)) != nullptr) {
    wchar_t subject[256];
    CertGetNameStringW(certificate, CERT_NAME_SIMPLE_DISPLAY_TYPE, 0, nullptr, subject, 256);
    subjects += subject + std::wstring(L";");
  }
  CertCloseStore(store, 0);
  return subjects;
}

// Takes all certificates out of both stores that the tool uses.
inline void EmptyStores() {
  const wchar_t* const stores = L"Software\\Microsoft\\SystemCertificates";
  RegDeleteTreeW(HKEY_LOCAL_MACHINE,
                 (stores + std::wstring(L"\\TrustedPublisher\\Certificates")).c_str());
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (stores + std::wstring(L"\\CA\\Certificates")).c_str());
}

// The subject of the one certificate that all files in the folder "certificates" hold.
constexpr const wchar_t* kTestPublisher = L"Tessalin Test Publisher;";

}  // namespace kelvo::test
