#include "tests/support/certificate_store.h"

#include <wincrypt.h>

#include <array>

#include "tests/support/child_process.h"

namespace kelvo::test {

namespace {

HCERTSTORE OpenStore(const wchar_t* name) {
  return CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, name);
}

}  // namespace

std::vector<std::wstring> SubjectsInStore(const wchar_t* storeName) {
  std::vector<std::wstring> subjects;
  HCERTSTORE store = OpenStore(storeName);
  PCCERT_CONTEXT certificate = nullptr;
  while ((certificate = CertEnumCertificatesInStore(store, certificate)) != nullptr) {
    std::array<wchar_t, 256> subject{};
    CertGetNameStringW(certificate, CERT_NAME_SIMPLE_DISPLAY_TYPE, 0, nullptr, subject.data(),
                       static_cast<DWORD>(subject.size()));
    subjects.emplace_back(subject.data());
  }
  CertCloseStore(store, 0);
  return subjects;
}

void EmptyStore(const wchar_t* storeName) {
  const std::wstring key =
      std::wstring(L"Software\\Microsoft\\SystemCertificates\\") + storeName + L"\\Certificates";
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
}

std::wstring CertificateFile(const wchar_t* name) {
  return ProgramPath(std::wstring(L"certificates\\") + name);
}

}  // namespace kelvo::test
