#include "lib/certificates/certificate_import.h"

#include <wincrypt.h>

#include <set>

#include "tests/support/catch.h"
#include "tests/support/certificate_store.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

using test::CertificateFile;
using test::SubjectsInStore;

namespace {
const std::vector<std::wstring> kPublisher = {L"Tessalin Test Publisher"};
}

TEST_CASE("a certificate is imported from a binary and from a Base64 file, once") {
  for (const wchar_t* const file : {L"binary.cer", L"base64.cer"}) {
    CAPTURE(file);
    test::EmptyStore(L"TrustedPublisher");
    test::EmptyStore(L"CA");
    CHECK(ImportCertToTrustedPublishers(CertificateFile(file).c_str()) == 0);
    CHECK(ImportCertToTrustedPublishers(CertificateFile(file).c_str()) == 0);
    CHECK(SubjectsInStore(L"TrustedPublisher") == kPublisher);
    CHECK(SubjectsInStore(L"CA").empty());
    CHECK(ImportCertToIntermediateCA(CertificateFile(file).c_str()) == 0);
    CHECK(SubjectsInStore(L"CA") == kPublisher);
  }
}

TEST_CASE("what is no certificate adds nothing") {
  test::EmptyStore(L"CA");
  const test::ScratchFolder folder;
  const auto import = [](const std::wstring& file) {
    return ImportCertToIntermediateCA(file.c_str());
  };
  CHECK(import(CertificateFile(L"bundle.p7b")) == 0);
  CHECK(import(folder.Write("garbage.cer", "no certificate at all").wstring()) != 0);
  // Of no bytes at all Wine 8 makes what lies on its stack by chance.
  CHECK(import(folder.Write("empty.cer", "\n").wstring()) != 0);
  CHECK(import((folder.Path() / "missing.cer").wstring()) != 0);
  CHECK(import(L"") != 0);
  CHECK(SubjectsInStore(L"CA").empty());
}

TEST_CASE("the store must exist") {
  const std::wstring file = CertificateFile(L"binary.cer");
  CHECK(ImportCertToSystemStore(file.c_str(), L"no such store") == ERROR_FILE_NOT_FOUND);
}

TEST_CASE("everything is closed but the store of a file that cannot be read") {
  struct Row {
    const wchar_t* file;
    bool addFails;
    DWORD result;
    std::size_t leftOpen;
  };
  const Row rows[] = {
      {L"binary.cer", false, 0, 0},
      {L"bundle.p7b", false, 0, 0},
      {L"binary.cer", true, ERROR_ACCESS_DENIED, 0},
      {L"missing.cer", false, static_cast<DWORD>(CRYPT_E_NO_MATCH), 1},
  };
  for (const Row& row : rows) {
    std::multiset<const void*> open;
    const auto close = [&](const void* handle) { open.erase(open.find(handle)); };
    const auto opened = KELVO_REPLACE_IMPORT(
        CertOpenStore, [&](auto* original, LPCSTR provider, DWORD encoding,
                           HCRYPTPROV_LEGACY cryptographic, DWORD flags, const void* name) {
          CHECK((provider == CERT_STORE_PROV_SYSTEM_W && encoding == 0x10001 &&
                 cryptographic == 0 && flags == 0x24000));
          HCERTSTORE store = original(provider, encoding, cryptographic, flags, name);
          open.insert(store);
          return store;
        });
    const auto queried = KELVO_REPLACE_IMPORT(
        CryptQueryObject,
        [&](auto* original, DWORD object, const void* file, DWORD content, DWORD format,
            DWORD flags, DWORD* encoding, DWORD* contentType, DWORD* formatType, HCERTSTORE* store,
            HCRYPTMSG* message, const void** context) {
          CHECK((object == 1 && content == 0x3FFE && format == 0xE && flags == 0 &&
                 message == nullptr));
          CHECK((*encoding == 0 && *contentType == 0 && *formatType == 0 && *store == nullptr &&
                 *context == nullptr));
          const BOOL found = original(object, file, content, format, flags, encoding, contentType,
                                      formatType, store, message, context);
          if (found == FALSE) {
            SetLastError(static_cast<DWORD>(CRYPT_E_NO_MATCH));
            return found;
          }
          open.insert(*store);
          if (*context != nullptr) {
            open.insert(*context);
          }
          return found;
        });
    const auto added =
        KELVO_REPLACE_IMPORT(CertAddCertificateContextToStore,
                             [&](auto* original, HCERTSTORE store, PCCERT_CONTEXT certificate,
                                 DWORD disposition, PCCERT_CONTEXT* copy) {
                               CHECK((disposition == 3 && copy == nullptr));
                               if (row.addFails) {
                                 SetLastError(ERROR_ACCESS_DENIED);
                                 return FALSE;
                               }
                               return original(store, certificate, disposition, copy);
                             });
    const auto closedStore =
        KELVO_REPLACE_IMPORT(CertCloseStore, [&](auto* original, HCERTSTORE store, DWORD flags) {
          CHECK(flags == 0);
          close(store);
          const BOOL closed = original(store, flags);
          // Cleaning up must not hide what the add said.
          SetLastError(ERROR_SUCCESS);
          return closed;
        });
    const auto freed = KELVO_REPLACE_IMPORT(CertFreeCertificateContext,
                                            [&](auto* original, PCCERT_CONTEXT certificate) {
                                              close(certificate);
                                              return original(certificate);
                                            });
    CAPTURE(row.file, row.addFails);
    CHECK(ImportCertToTrustedPublishers(CertificateFile(row.file).c_str()) == row.result);
    CHECK(open.size() == row.leftOpen);
  }
}

}  // namespace kelvo
