#include "lib/certificates/certificate_import.h"

#include <wincrypt.h>

#include <memory>

#include "lib/platform/system_library.h"
#include "lib/wsspi/sspi_loader.h"

namespace kelvo {

namespace {

// The flags of the content types 1 to 13 (CERT_QUERY_CONTENT_FLAG_*). CERT_QUERY_CONTENT_FLAG_ALL
// is not used, because its value can differ between versions of wincrypt.h.
constexpr DWORD kContentTypes = 0x3FFE;

// The functions of crypt32.dll that this file calls. They are looked up at run time, so a program
// can start without crypt32.dll. If a function is missing, ImportCertToSystemStore returns an error
// code.
struct Crypt32 {
  // Returns false and sets the last error when the library or one of these functions is missing.
  // Never frees the library, since a store that AddFromFile leaves open still needs crypt32.dll.
  bool Bind() {
    const HMODULE library = LoadSystemLibrary(L"crypt32.dll").release();
    openStore = KELVO_FIND_FUNCTION(library, CertOpenStore);
    queryObject = KELVO_FIND_FUNCTION(library, CryptQueryObject);
    addCertificate = KELVO_FIND_FUNCTION(library, CertAddCertificateContextToStore);
    freeCertificate = KELVO_FIND_FUNCTION(library, CertFreeCertificateContext);
    closeStore = KELVO_FIND_FUNCTION(library, CertCloseStore);
    return openStore != nullptr && queryObject != nullptr && addCertificate != nullptr &&
           freeCertificate != nullptr && closeStore != nullptr;
  }

  decltype(&CertOpenStore) openStore = nullptr;
  decltype(&CryptQueryObject) queryObject = nullptr;
  decltype(&CertAddCertificateContextToStore) addCertificate = nullptr;
  decltype(&CertFreeCertificateContext) freeCertificate = nullptr;
  decltype(&CertCloseStore) closeStore = nullptr;
};

struct StoreCloser {
  decltype(&CertCloseStore) close;
  void operator()(HCERTSTORE store) const { close(store, 0); }
};
using BoundStore = std::unique_ptr<void, StoreCloser>;

struct CertificateFreer {
  decltype(&CertFreeCertificateContext) free;
  void operator()(PCCERT_CONTEXT certificate) const { free(certificate); }
};
using BoundCertificate = std::unique_ptr<const CERT_CONTEXT, CertificateFreer>;

DWORD AddFromFile(const Crypt32& crypt32, const wchar_t* file, BoundStore& systemStore) {
  DWORD encodingType = 0;
  DWORD contentType = 0;
  DWORD formatType = 0;
  HCERTSTORE store = nullptr;
  const void* context = nullptr;
  if (crypt32.queryObject(CERT_QUERY_OBJECT_FILE, file, kContentTypes, CERT_QUERY_FORMAT_FLAG_ALL,
                          0, &encodingType, &contentType, &formatType, &store, nullptr,
                          &context) == FALSE) {
    const DWORD error = GetLastError();
    // Leaves the system store open on purpose, as certificate_import.h says.
    static_cast<void>(systemStore.release());  // NOLINT(bugprone-unused-return-value): stays open
    return error;
  }
  const BoundStore fileStore(store, {crypt32.closeStore});
  const BoundCertificate certificate(static_cast<PCCERT_CONTEXT>(context),
                                     {crypt32.freeCertificate});
  if (certificate && crypt32.addCertificate(systemStore.get(), certificate.get(),
                                            CERT_STORE_ADD_REPLACE_EXISTING, nullptr) == FALSE) {
    return GetLastError();
  }
  return ERROR_SUCCESS;
}

}  // namespace

DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName) {
  if (!wsspi::IsSspiInitialized()) {
    wsspi::SspiInitialize();
  }
  // Looks up all functions before any store is opened. If a function is missing, no store changes.
  Crypt32 crypt32;
  if (!crypt32.Bind()) {
    return GetLastError();
  }
  BoundStore systemStore(
      crypt32.openStore(CERT_STORE_PROV_SYSTEM_W, X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, 0,
                        CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_OPEN_EXISTING_FLAG, storeName),
      {crypt32.closeStore});
  return systemStore ? AddFromFile(crypt32, file, systemStore) : GetLastError();
}

DWORD ImportCertToTrustedPublishers(const wchar_t* file) {
  return ImportCertToSystemStore(file, kTrustedPublisherStore);
}

DWORD ImportCertToIntermediateCA(const wchar_t* file) {
  return ImportCertToSystemStore(file, kIntermediateCaStore);
}

}  // namespace kelvo
