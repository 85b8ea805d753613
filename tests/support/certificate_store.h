#pragma once

#include <windows.h>

#include <wincrypt.h>

#include <string>

#include "tests/support/throw_away_prefix.h"

namespace kelvo::test {

// The subjects of this suite's certificates in a system store of the local machine; with `remove`,
// these are then taken out of it. The machine's own certificates are left alone.
inline std::wstring SubjectsInStore(const wchar_t* name, bool remove = false) {
  HCERTSTORE store =
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, name);
  std::wstring subjects;
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store, certificate)) != nullptr) {
    wchar_t subject[99];
    CertGetNameStringW(certificate, CERT_NAME_SIMPLE_DISPLAY_TYPE, 0, nullptr, subject, 99);
    if (std::wstring(subject) != L"Tessalin Test Publisher" &&
        std::wstring(subject) != L"Tessalin Test Authority") {
      continue;
    }
    subjects += subject;
    BYTE hash[20];
    DWORD size = sizeof(hash);
    if (remove &&
        CertGetCertificateContextProperty(certificate, CERT_SHA1_HASH_PROP_ID, hash, &size)) {
      // Wine keeps what CertDeleteCertificateFromStore deletes.
      std::wstring key =
          std::wstring(L"Software\\Microsoft\\SystemCertificates\\") + name + L"\\Certificates\\";
      // Not BytesToHex, which is under test: without the digits all certificates would be deleted.
      for (const BYTE byte : hash) {
        key += L"0123456789ABCDEF"[byte / 16];
        key += L"0123456789ABCDEF"[byte % 16];
      }
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
    }
  }
  CertCloseStore(store, 0);
  return subjects;
}

inline void RemoveTestCertificates() {
  RequireThrowAwayPrefix();
  SubjectsInStore(L"TrustedPublisher", true);
  SubjectsInStore(L"CA", true);
}

}  // namespace kelvo::test
