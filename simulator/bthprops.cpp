// Simulates bthprops.cpl, the system's Bluetooth control panel library.

#include <windows.h>

#include <bluetoothapis.h>

#include "lib/string/format_text.h"
#include "simulator/rehearsal.h"

// NOLINTNEXTLINE(google-build-using-namespace): the whole file is part of the simulator
using namespace kelvo::simulator;

// NOLINTNEXTLINE(misc-use-internal-linkage): Windows calls it
BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, void* processEnds) {
  JournalLibrary(L"bthprops.cpl", reason, processEnds);
  return TRUE;
}

DWORD WINAPI BluetoothSetLocalServiceInfo(HANDLE hRadioIn, const GUID* pClassGuid, ULONG ulInstance,
                                          const BLUETOOTH_LOCAL_SERVICE_INFO* pServiceInfoIn) {
  const kelvo::WString line = kelvo::FormatText(
      L"BluetoothSetLocalServiceInfo radio=%s "
      L"class={%08lX-%04hX-%04hX-%02X%02X-%02X%02X%02X%02X%02X%02X}"
      L" instance=%lu enabled=%d address=%012I64X name=\"%s\" device=\"%s\"",
      hRadioIn == nullptr ? L"none" : L"given", pClassGuid->Data1, pClassGuid->Data2,
      pClassGuid->Data3, pClassGuid->Data4[0], pClassGuid->Data4[1], pClassGuid->Data4[2],
      pClassGuid->Data4[3], pClassGuid->Data4[4], pClassGuid->Data4[5], pClassGuid->Data4[6],
      pClassGuid->Data4[7], ulInstance, pServiceInfoIn->Enabled, pServiceInfoIn->btAddr.ullLong,
      pServiceInfoIn->szName, pServiceInfoIn->szDeviceString);
  WriteToJournal(line);
  return NumberFromEnvironment(L"SORREL_SIMULATOR_BLUETOOTH_RESULT");
}
