#pragma once

#include <windows.h>

namespace kelvo {

// Prepares the machine for the hands-free service: trusts the publisher's and the intermediate
// certificate, installs the driver package, records the application as a dependant and registers
// the service. Each step runs whatever became of the ones before and reports its own line. Always
// returns 0. Lets wsspi::SspiException* pass, which ends the process.
DWORD Install(const wchar_t* infPath, const wchar_t* publisherCertFile,
              const wchar_t* intermediateCertFile, const wchar_t* appName);

}  // namespace kelvo
