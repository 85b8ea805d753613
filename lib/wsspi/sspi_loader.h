#pragma once

namespace wsspi {

// Returns true once SspiInitialize has obtained the SSPI function table.
bool IsSspiInitialized();

// Loads "security.dll" and keeps the function table that its InitSecurityInterfaceW returns. Does
// nothing when an earlier call has already obtained the table. The library is never freed. If the
// table cannot be obtained, throws an SspiException (lib/wsspi/sspi_exception.h) by pointer, with
// ErrorNoLibrary or ErrorNoSecurityInterface. The next call then tries again. If two threads
// call this function at the same time, the worst result is that both load the library.
void SspiInitialize();

}  // namespace wsspi
