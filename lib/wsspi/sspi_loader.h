#pragma once

namespace wsspi {

// Returns true once SspiInitialize has the provider's function table.
bool IsSspiInitialized();

// Loads "security.dll" and keeps the function table that its InitSecurityInterfaceW returns, once
// per process; the library is never freed. Does nothing when it already has the table. When it
// cannot get the table, throws an SspiException (lib/wsspi/sspi_exception.h) by pointer, with
// ErrorNoLibrary or ErrorNoSecurityInterface; the next call tries again. Two concurrent calls would
// at worst load it twice.
void SspiInitialize();

}  // namespace wsspi
