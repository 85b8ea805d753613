#pragma once

#include <windows.h>

namespace kelvo {

// Prepares the computer for the hands-free service: imports the publisher certificate and the
// intermediate certificate, installs the driver package, adds the application to the list of
// applications that use the service, and registers the service. If a step fails, the next steps
// still run. Each step except adding the application writes lines to standard output. Always
// returns 0. Does not catch the wsspi::SspiException* that the certificate import may throw
// (lib/certificates/certificate_import.h); this exception ends the process.
DWORD Install(const wchar_t* infPath, const wchar_t* publisherCertFile,
              const wchar_t* intermediateCertFile, const wchar_t* appName);

}  // namespace kelvo
