// Simulates difxapi.dll, the library that installs driver packages.

#include "tool/difxapi.h"

#include <cwchar>

#include "lib/string/format_text.h"
#include "lib/string/string_tokenizer.h"
#include "simulator/rehearsal.h"

// NOLINTNEXTLINE(google-build-using-namespace): the whole file is part of the simulator
using namespace kelvo::simulator;

namespace {

DIFXAPILOGCALLBACK_W logCallback = nullptr;
void* logContext = nullptr;

// Passes each event in the environment variable SORREL_SIMULATOR_DRIVER_LOG to the callback. An
// event is "level,code,text", and "|" separates events. An event without a second comma has a null
// text.
void SendLogEvents() {
  const kelvo::WString events = TextFromEnvironment(L"SORREL_SIMULATOR_DRIVER_LOG");
  for (kelvo::StringTokenizer tokens(events, L"|", true); tokens.HasMoreTokens();) {
    const kelvo::WString event = tokens.NextToken();
    wchar_t* rest = nullptr;
    const DWORD level = std::wcstoul(event.c_str(), &rest, 0);
    const DWORD code = *rest == L',' ? std::wcstoul(rest + 1, &rest, 0) : ERROR_SUCCESS;
    logCallback(static_cast<DIFXAPI_LOG>(level), code, *rest == L',' ? rest + 1 : nullptr,
                logContext);
  }
}

}  // namespace

// NOLINTNEXTLINE(misc-use-internal-linkage): Windows calls it
BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, void* processEnds) {
  JournalLibrary(L"difxapi.dll", reason, processEnds);
  return TRUE;
}

void WINAPI SetDifxLogCallbackW(DIFXAPILOGCALLBACK_W callback, PVOID context) {
  logCallback = callback;
  logContext = context;
  WriteToJournal(callback == nullptr ? L"SetDifxLogCallbackW callback=none"
                                     : L"SetDifxLogCallbackW callback=given");
}

DWORD WINAPI DriverPackageInstallW(PCWSTR infPath, DWORD flags,
                                   const INSTALLERINFO_W* installerInfo, BOOL* needReboot) {
  const kelvo::WString line =
      kelvo::FormatText(L"DriverPackageInstallW inf=\"%s\" flags=%lu installer=%s reboot=%d",
                        infPath, flags, installerInfo == nullptr ? L"none" : L"given", *needReboot);
  WriteToJournal(line);
  if (logCallback != nullptr) {
    SendLogEvents();
  }
  if (NumberFromEnvironment(L"SORREL_SIMULATOR_DRIVER_CRASH") != 0) {
    TerminateProcess(GetCurrentProcess(), ERROR_PROCESS_ABORTED);
  }
  *needReboot = static_cast<BOOL>(NumberFromEnvironment(L"SORREL_SIMULATOR_DRIVER_REBOOT"));
  return NumberFromEnvironment(L"SORREL_SIMULATOR_DRIVER_RESULT");
}
