#include "lib/certificates/certificate_import.h"

#include "tests/support/certificate_store.h"
#include "tests/support/testing.h"

TEST_CASE("a certificate goes in once, a collection adds nothing, a missing store is an error") {
  RemoveTestCertificates();
  for (const auto& [file, subjects] : {std::pair{L"bundle.p7b", L""},
                                       {L"binary.cer", L"Tessalin Test Publisher"},
                                       {L"binary.cer", L"Tessalin Test Publisher"}}) {
    const std::wstring path = ProgramPath(std::wstring(L"certificates\\") + file);
    CHECK(ImportCertToTrustedPublishers(path.c_str()) == ERROR_SUCCESS);
    CHECK(SubjectsInStore(L"TrustedPublisher") == subjects);
  }
  CHECK(ImportCertToSystemStore(L"missing.cer", L"no such store") == ERROR_FILE_NOT_FOUND);
  RemoveTestCertificates();
}
