#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <string>

namespace kelvo::test {

// The subjects of the certificates in a system store of the local machine.
inline std::wstring SubjectsInStore(const wchar_t* name) {
  HCERTSTORE store =
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, name);
  std::wstring subjects;
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store, certificate)) != nullptr) {
    wchar_t subject[99];
    CertGetNameStringW(certificate, CERT_NAME_SIMPLE_DISPLAY_TYPE, 0, nullptr, subject, 99);
    subjects += subject;
  }
  CertCloseStore(store, 0);
  return subjects;
}

// Takes all certificates out of both stores that the tool uses.
inline void EmptyStores() {
  for (const std::wstring store : {L"TrustedPublisher", L"CA"}) {
    const std::wstring key = L"Software\\Microsoft\\SystemCertificates\\" + store;
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (key + L"\\Certificates").c_str());
  }
}

}  // namespace kelvo::test
