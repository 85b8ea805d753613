#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <string>

#include "tests/support/throw_away_prefix.h"

namespace kelvo::test {

// Returns the display names of all certificates' subjects in a local-machine system store, joined.
// If the store does not exist, returns L"" and does not create the store.
inline std::wstring SubjectsInStore(const wchar_t* name) {
  HCERTSTORE store =
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0,
                    CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_OPEN_EXISTING_FLAG, name);
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

// Empties the two stores that sorrel.exe writes to, and creates missing ones. In a throw-away Wine
// prefix, these stores have only test certificates. Deletes the certificates' registry keys,
// because Wine's CertDeleteCertificateFromStore does not delete a certificate permanently.
inline void RemoveTestCertificates() {
  RequireThrowAwayPrefix();
  for (const std::wstring name : {L"TrustedPublisher", L"CA"}) {
    const std::wstring key = L"Software\\Microsoft\\SystemCertificates\\" + name;
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (key + L"\\Certificates").c_str());
    CertCloseStore(CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE,
                                 name.c_str()),
                   0);
  }
}

}  // namespace kelvo::test
