#pragma once

namespace wsspi {

// True once SspiInitialize has the provider's function table.
bool IsSspiInitialized();

// Loads "security.dll" and keeps the function table that its InitSecurityInterfaceW gives, once per
// process; the library is never freed. Does nothing when the table is already held. Throws a new
// SspiException, by pointer, with ErrorNoLibrary or ErrorNoSecurityInterface when it cannot be had;
// the next call then tries again. Not guarded against two threads at once, which would only load
// twice.
void SspiInitialize();

}  // namespace wsspi
