#include "lib/certificates/certificate_import.h"

#include <wincrypt.h>

#include <set>
#include <tuple>

#include "tests/support/catch.h"
#include "tests/support/certificate_store.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

using test::CertificateFile;

TEST_CASE("a certificate goes into the store once, however often it is imported") {
  test::EmptyStore(L"TrustedPublisher");
  for (const wchar_t* const file : {L"binary.cer", L"binary.cer", L"base64.cer"}) {
    CHECK(ImportCertToTrustedPublishers(CertificateFile(file).c_str()) == 0);
    CHECK(test::SubjectsInStore(L"TrustedPublisher") == test::kCertificateSubject);
  }
  CHECK(ImportCertToSystemStore(CertificateFile(L"binary.cer").c_str(), L"no such store") ==
        ERROR_FILE_NOT_FOUND);
}

TEST_CASE("everything is closed but the store of a file that cannot be read") {
  const std::tuple<const wchar_t*, BOOL, DWORD, std::size_t> rows[] = {
      {L"binary.cer", TRUE, 0, 0},
      {L"bundle.p7b", TRUE, 0, 0},
      {L"binary.cer", FALSE, ERROR_ACCESS_DENIED, 0},
      {L"missing.cer", TRUE, ERROR_SHARING_VIOLATION, 1},
  };
  for (const auto& [file, adds, result, leftOpen] : rows) {
    CAPTURE(file, adds);
    std::multiset<const void*> open;
    const auto opened =
        KELVO_REPLACE_IMPORT(CertOpenStore, [&](auto* original, LPCSTR provider, DWORD encoding,
                                                auto cryptographic, DWORD flags, const void* name) {
          CHECK((provider == CERT_STORE_PROV_SYSTEM_W && encoding == 0x10001 && flags == 0x24000));
          HCERTSTORE store = original(provider, encoding, cryptographic, flags, name);
          open.insert(store);
          return store;
        });
    const auto queried = KELVO_REPLACE_IMPORT(
        CryptQueryObject,
        [&](auto* original, DWORD object, const void* path, DWORD content, DWORD format,
            DWORD flags, DWORD* encoding, DWORD* contentType, DWORD* formatType, HCERTSTORE* store,
            HCRYPTMSG* message, const void** context) {
          CHECK((object == 1 && content == 0x3FFE && format == 0xE && flags == 0));
          CHECK((message == nullptr && *encoding + *contentType + *formatType == 0));
          CHECK((*store == nullptr && *context == nullptr));
          const BOOL found = original(object, path, content, format, flags, encoding, contentType,
                                      formatType, store, message, context);
          open.insert({*store, *context});
          open.erase(nullptr);
          SetLastError(ERROR_SHARING_VIOLATION);
          return found;
        });
    const auto added = KELVO_REPLACE_IMPORT(
        CertAddCertificateContextToStore,
        [&](auto* original, HCERTSTORE store, auto certificate, DWORD disposition, auto* copy) {
          CHECK((disposition == 3 && copy == nullptr));
          const BOOL done = adds && original(store, certificate, disposition, copy);
          SetLastError(ERROR_ACCESS_DENIED);
          return done;
        });
    // Cleaning up must not hide what the failing call said.
    const auto close = [&](const void* handle) {
      open.erase(open.find(handle));
      SetLastError(ERROR_SUCCESS);
      return TRUE;
    };
    const auto closed = KELVO_REPLACE_IMPORT(
        CertCloseStore, [&](auto*, HCERTSTORE store, DWORD) { return close(store); });
    const auto freed = KELVO_REPLACE_IMPORT(
        CertFreeCertificateContext, [&](auto*, auto certificate) { return close(certificate); });
    CHECK(ImportCertToTrustedPublishers(CertificateFile(file).c_str()) == result);
    CHECK(open.size() == leftOpen);
  }
}

}  // namespace kelvo
