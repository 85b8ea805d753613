#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kelvo::test {

// The subjects of the certificates in a system store of the local machine.
std::vector<std::wstring> SubjectsInStore(const wchar_t* storeName);

// Takes all certificates out of it.
void EmptyStore(const wchar_t* storeName);

// A file that the test build made: "binary.cer", "base64.cer" and "bundle.p7b" hold the same
// certificate.
std::wstring CertificateFile(const wchar_t* name);

const std::vector<std::wstring> kCertificateSubject = {L"Tessalin Test Publisher"};

}  // namespace kelvo::test
