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

// An open certificate store: closed with CertCloseStore, null when there is none.
using OwnedCertificateStore = Owned<internal::CertificateStoreTraits>;

// A certificate context: freed with CertFreeCertificateContext, null when there is none. The
// context may outlive the store from which it was read.
using OwnedCertificate = Owned<internal::CertificateTraits>;

}  // namespace kelvo
