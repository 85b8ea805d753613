#include "lib/certificates/certificate_import.h"

#include <wincrypt.h>

#include <set>

#include "tests/support/certificate_store.h"
#include "tests/support/testing.h"

TEST_CASE("a certificate goes in once; all is closed but the store of an unreadable file") {
  // A file, whether adding is let through, the answer, handles left open.
  using Row = std::tuple<const wchar_t*, BOOL, DWORD, std::size_t>;
  const auto rows = std::to_array({Row(L"binary.cer", TRUE, 0, 0), Row(L"bundle.p7b", TRUE, 0, 0),
                                   Row(L"binary.cer", FALSE, ERROR_ACCESS_DENIED, 0),
                                   Row(L"missing.cer", TRUE, ERROR_SHARING_VIOLATION, 1)});
  RemoveTestCertificates();
  for (const auto& [file, adds, result, leftOpen] : rows) {
    CAPTURE(file);
    CAPTURE(adds);
    std::multiset<const void*> open;
    REPLACE_LOOKUP(CertOpenStore, [&](auto original, auto... given) {
      return const_cast<void*>(*open.insert(original(given...)));
    });
    REPLACE_LOOKUP(CryptQueryObject, [&](auto original, auto... given) {
      const auto [object, path, content, format, flags, encoding, contentType, formatType, store,
                  message, context] = std::tuple(given...);
      CHECK((*encoding + *contentType + *formatType == 0 && !*store && !message && !*context));
      const BOOL found = original(given...);
      open.insert({*store, *context});
      open.erase(nullptr);
      return SetLastError(ERROR_SHARING_VIOLATION), found;
    });
    REPLACE_LOOKUP(CertAddCertificateContextToStore, [&](auto original, auto... given) {
      const BOOL done = adds && original(given...);
      return SetLastError(ERROR_ACCESS_DENIED), done;
    });
    // Cleaning up must not hide what the failing call said.
    const auto close = [&](auto original, auto handle, auto... rest) {
      open.erase(open.find(handle));
      original(handle, rest...);
      return SetLastError(ERROR_SUCCESS), TRUE;
    };
    REPLACE_LOOKUP(CertCloseStore, close);
    REPLACE_LOOKUP(CertFreeCertificateContext, close);
    const std::wstring path = ProgramPath(std::wstring(L"certificates\\") + file);
    CHECK(ImportCertToTrustedPublishers(path.c_str()) == result);
    CHECK(open.size() == leftOpen);
  }
  CHECK(SubjectsInStore(L"TrustedPublisher") == L"Tessalin Test Publisher");
  CHECK(ImportCertToSystemStore(L"missing.cer", L"no such store") == ERROR_FILE_NOT_FOUND);
  RemoveTestCertificates();
}
