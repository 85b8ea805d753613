#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <string>

namespace kelvo::test {

// The number of certificates in a system store of the local machine.
inline int CertificatesInStore(const wchar_t* name) {
  HCERTSTORE store =
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, name);
  int count = 0;
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store, certificate)) != nullptr) {
    ++count;
  }
  CertCloseStore(store, 0);
  return count;
}

// Takes all certificates out of both stores that the tool uses.
inline void EmptyStores() {
  for (const std::wstring store : {L"TrustedPublisher", L"CA"}) {
    const std::wstring key = L"Software\\Microsoft\\SystemCertificates\\" + store;
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (key + L"\\Certificates").c_str());
  }
}

}  // namespace kelvo::test
