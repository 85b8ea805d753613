// Stands in for the system's Bluetooth control-panel library.

#include <windows.h>
#include <bluetoothapis.h>

#include "lib/string/format_text.h"
#include "simulator/rehearsal.h"

using namespace kelvo::simulator;  // NOLINT(google-build-using-namespace): this file is nothing
                                   // else

BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, void* processEnds) {
  JournalLibrary(L"bthprops.cpl", reason, processEnds);
  return TRUE;
}

DWORD WINAPI BluetoothSetLocalServiceInfo(HANDLE radio, const GUID* service, ULONG instance,
                                          const BLUETOOTH_LOCAL_SERVICE_INFO* info) {
  const kelvo::WString line = kelvo::FormatText(
      L"BluetoothSetLocalServiceInfo radio=%s "
      L"class={%08lX-%04hX-%04hX-%02X%02X-%02X%02X%02X%02X%02X%02X}"
      L" instance=%lu enabled=%d address=%012I64X name=\"%s\" device=\"%s\"",
      radio == nullptr ? L"none" : L"given", service->Data1, service->Data2, service->Data3,
      service->Data4[0], service->Data4[1], service->Data4[2], service->Data4[3], service->Data4[4],
      service->Data4[5], service->Data4[6], service->Data4[7], instance, info->Enabled,
      info->btAddr.ullLong, info->szName, info->szDeviceString);
  WriteToJournal(line.c_str());
  return NumberFromEnvironment(L"SORREL_SIMULATOR_BLUETOOTH_RESULT");
}
