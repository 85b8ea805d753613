#include "lib/certificates/certificate_import.h"

#include "lib/certificates/certificate_handles.h"
#include "lib/wsspi/sspi_loader.h"

namespace kelvo {

namespace {

// The content types that Windows knew when this set was fixed; newer headers add to
// CERT_QUERY_CONTENT_FLAG_ALL.
constexpr DWORD kContentTypes = 0x3FFE;

}  // namespace

DWORD ImportCertToSystemStore(const wchar_t* file, const wchar_t* storeName) {
  if (!wsspi::IsSspiInitialized()) {
    wsspi::SspiInitialize();
  }
  OwnedCertificateStore systemStore(
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, X509_ASN_ENCODING | PKCS_7_ASN_ENCODING, 0,
                    CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_OPEN_EXISTING_FLAG, storeName));
  if (!systemStore) {
    return GetLastError();
  }

  // Owners close in the reverse of this order: the context, the file's store, the system store.
  OwnedCertificateStore fileStore;
  OwnedCertificate certificate;
  DWORD encodingType = 0;
  DWORD contentType = 0;
  DWORD formatType = 0;
  const void* context = nullptr;
  if (CryptQueryObject(CERT_QUERY_OBJECT_FILE, file, kContentTypes, CERT_QUERY_FORMAT_FLAG_ALL, 0,
                       &encodingType, &contentType, &formatType, fileStore.Receive(), nullptr,
                       &context) == FALSE) {
    const DWORD error = GetLastError();
    // Kept open on this path: one handle for each file that cannot be read is accepted.
    systemStore.release();
    return error;
  }
  certificate.reset(static_cast<PCCERT_CONTEXT>(context));
  if (certificate &&
      CertAddCertificateContextToStore(systemStore.get(), certificate.get(),
                                       CERT_STORE_ADD_REPLACE_EXISTING, nullptr) == FALSE) {
    return GetLastError();
  }
  return ERROR_SUCCESS;
}

DWORD ImportCertToTrustedPublishers(const wchar_t* file) {
  return ImportCertToSystemStore(file, kTrustedPublisherStore);
}

DWORD ImportCertToIntermediateCA(const wchar_t* file) {
  return ImportCertToSystemStore(file, kIntermediateCaStore);
}

}  // namespace kelvo
