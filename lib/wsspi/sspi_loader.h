#pragma once

namespace wsspi {

// Returns true once SspiInitialize holds the provider's function table.
bool IsSspiInitialized();

// Loads "security.dll" and keeps the function table that its InitSecurityInterfaceW returns, once
// per process; the library is never freed. Does nothing when the table is already there. Throws an
// SspiException (lib/wsspi/sspi_exception.h) by pointer, with ErrorNoLibrary or
// ErrorNoSecurityInterface, when it cannot get the table; the next call then tries again. Two
// threads at once would at worst load it twice.
void SspiInitialize();

}  // namespace wsspi
