#pragma once

#include <windows.h>

#include <wincrypt.h>

#include "lib/platform/owned.h"

namespace kelvo {

namespace internal {

struct CertificateStoreTraits {
  using Handle = HCERTSTORE;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CertCloseStore(handle, 0); }
};

struct CertificateTraits {
  using Handle = PCCERT_CONTEXT;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CertFreeCertificateContext(handle); }
};

}  // namespace internal

// Owns an open certificate store, and closes it with CertCloseStore. Null means "no store".
using OwnedCertificateStore = Owned<internal::CertificateStoreTraits>;

// Owns a certificate context, and frees it with CertFreeCertificateContext. Null means "no
// certificate". The context may outlive the store from which it was read.
using OwnedCertificate = Owned<internal::CertificateTraits>;

}  // namespace kelvo
