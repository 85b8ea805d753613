#include "lib/process/run_as_user.h"

#include "lib/platform/owned.h"
#include "lib/process/interactive_desktop.h"
#include "lib/process/internal/interactive_access.h"
#include "lib/process/internal/primary_token.h"
#include "lib/process/internal/window_objects.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/string/format_text.h"

namespace kelvo {

namespace {

// What a call holds from its steps to its clean-up.
struct Launch {
  bool isOnInteractiveStation = false;
  internal::OwnedWindowStation keptStation;
  internal::OwnedDesktop keptDesktop;
  OwnedProcessHeapMemory<SECURITY_DESCRIPTOR> descriptor;
  SECURITY_ATTRIBUTES attributes{};
  WString desktopPath;
  OwnedKernelObject process;
  OwnedKernelObject thread;
};

bool KeepPlace(HWINSTA station, HDESK desktop, Launch& launch) {
  DesktopNames names;
  if (!ReadDesktopNames(station, desktop, names)) {
    return false;
  }
  // Here letter case counts, unlike in IsOnInteractiveDesktop.
  launch.isOnInteractiveStation = lstrcmpW(names.station.data(), kInteractiveStation) == 0;
  const bool isOnInteractiveDesktop =
      launch.isOnInteractiveStation && lstrcmpW(names.desktop.data(), kInteractiveDesktop) == 0;
  if (!isOnInteractiveDesktop) {
    launch.keptStation.reset(GetProcessWindowStation());
    launch.keptDesktop.reset(GetThreadDesktop(GetCurrentThreadId()));
  }
  return true;
}

bool AllowEveryone(Launch& launch) {
  launch.descriptor.reset(static_cast<SECURITY_DESCRIPTOR*>(
      HeapAlloc(GetProcessHeap(), 0, sizeof(SECURITY_DESCRIPTOR))));
  if (!launch.descriptor) {
    return internal::StepFailed(L"RunAsUser HeapAlloc PSECURITY_DESCRIPTOR Failed");
  }
  if (InitializeSecurityDescriptor(launch.descriptor.get(), SECURITY_DESCRIPTOR_REVISION) ==
      FALSE) {
    return internal::StepFailed(L"RunAsUser InitializeSecurityDescriptor Failed");
  }
  if (SetSecurityDescriptorDacl(launch.descriptor.get(), TRUE, nullptr, FALSE) == FALSE) {
    return internal::StepFailed(L"RunAsUser SetSecurityDescriptorDacl Failed");
  }
  launch.attributes = {.nLength = sizeof(launch.attributes),
                       .lpSecurityDescriptor = launch.descriptor.get(),
                       .bInheritHandle = FALSE};
  return true;
}

bool StartProcess(HANDLE token, wchar_t* commandLine, Launch& launch) {
  launch.desktopPath = FormatText(L"%s\\%s", kInteractiveStation, kInteractiveDesktop);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.lpDesktop = launch.desktopPath.data();
  PROCESS_INFORMATION started{};
  SetLastError(ERROR_SUCCESS);
  if (CreateProcessAsUserW(token, nullptr, commandLine, &launch.attributes, &launch.attributes,
                           FALSE, 0, nullptr, nullptr, &startup, &started) == FALSE) {
    return internal::StepFailed(L"RunAsUser CreateProcessAsUser Failed");
  }
  launch.process.reset(started.hProcess);
  launch.thread.reset(started.hThread);
  return true;
}

void CleanUp(Launch& launch, BOOL wait, HANDLE* process) {
  launch.descriptor.reset();
  if (launch.keptStation) {
    SetProcessWindowStation(launch.keptStation.get());
  }
  if (launch.keptDesktop) {
    // The thread never left it.
    SetThreadDesktop(launch.keptDesktop.get());
  }
  if (launch.process) {
    if (wait != FALSE) {
      WaitForSingleObject(launch.process.get(), INFINITE);
    }
    if (process != nullptr) {
      *process = launch.process.release();
    }
    launch.process.reset();
    launch.thread.reset();
  }
  launch.keptDesktop.reset();
  launch.keptStation.reset();
}

}  // namespace

BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process) {
  const HWINSTA station = GetProcessWindowStation();
  const HDESK desktop = GetThreadDesktop(GetCurrentThreadId());
  // Stays open, by design.
  const HANDLE token = internal::GuardedAnswer(HANDLE{nullptr}, internal::OpenPrimaryToken);
  if (token == nullptr) {
    internal::StepFailed(L"RunAsUser OpenProcessToken On Self Failed");
    return FALSE;
  }
  Launch launch;
  return internal::GuardedOperation(
      L"RunAsUser exception caught in __finally",
      [&] {
        return internal::EnableStartPrivileges() && KeepPlace(station, desktop, launch) &&
               AllowEveryone(launch) &&
               (launch.isOnInteractiveStation || internal::MoveToInteractiveStation(token)) &&
               StartProcess(token, commandLine, launch);
      },
      [&] { CleanUp(launch, wait, process); });
}

}  // namespace kelvo
