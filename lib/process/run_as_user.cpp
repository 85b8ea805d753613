#include "lib/process/run_as_user.h"

#include <utility>

#include "lib/platform/owned.h"
#include "lib/process/interactive_desktop.h"
#include "lib/process/internal/interactive_access.h"
#include "lib/process/internal/primary_token.h"
#include "lib/process/internal/started_process.h"
#include "lib/process/internal/window_objects.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/string/wstring.h"

namespace kelvo {

namespace {

// The state and the resources of one call of RunAsUser.
struct Launch {
  bool isOnInteractiveStation = false;
  internal::OwnedWindowStation keptStation;
  internal::OwnedDesktop keptDesktop;
  OwnedProcessHeapMemory<SECURITY_DESCRIPTOR> descriptor;
  SECURITY_ATTRIBUTES attributes{};
  WString desktopPath;
  internal::StartedProcess started;
};

bool KeepPlace(HWINSTA station, HDESK desktop, Launch& launch) {
  DesktopNames names;
  if (!ReadDesktopNames(station, desktop, names)) {
    return false;
  }
  // Compares both names case-sensitively, whereas IsOnInteractiveDesktop() ignores letter case.
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
  if (!internal::Check(launch.descriptor.get() != nullptr,
                       L"RunAsUser HeapAlloc PSECURITY_DESCRIPTOR Failed")) {
    return false;
  }
  if (!internal::Check(InitializeSecurityDescriptor(launch.descriptor.get(),
                                                    SECURITY_DESCRIPTOR_REVISION) != FALSE,
                       L"RunAsUser InitializeSecurityDescriptor Failed")) {
    return false;
  }
  if (!internal::Check(
          SetSecurityDescriptorDacl(launch.descriptor.get(), TRUE, nullptr, FALSE) != FALSE,
          L"RunAsUser SetSecurityDescriptorDacl Failed")) {
    return false;
  }
  launch.attributes = {.nLength = sizeof(launch.attributes),
                       .lpSecurityDescriptor = launch.descriptor.get(),
                       .bInheritHandle = FALSE};
  return true;
}

bool StartProcess(HANDLE token, wchar_t* commandLine, Launch& launch) {
  launch.desktopPath = WString(kInteractiveStation) + L"\\" + kInteractiveDesktop;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.lpDesktop = launch.desktopPath.data();
  PROCESS_INFORMATION started{};
  SetLastError(ERROR_SUCCESS);
  const BOOL isCreated =
      CreateProcessAsUserW(token, nullptr, commandLine, &launch.attributes, &launch.attributes,
                           FALSE, 0, nullptr, nullptr, &startup, &started);
  launch.started = {isCreated, started};
  return internal::Check(static_cast<bool>(launch.started.process),
                         L"RunAsUser CreateProcessAsUser Failed");
}

void CleanUp(Launch& launch, BOOL wait, HANDLE* process) {
  launch.descriptor.reset();
  if (launch.keptStation) {
    SetProcessWindowStation(launch.keptStation.get());
  }
  if (launch.keptDesktop) {
    // This call has no effect, because the thread is still on this desktop.
    SetThreadDesktop(launch.keptDesktop.get());
  }
  if (launch.started.process) {
    if (wait != FALSE) {
      WaitForSingleObject(launch.started.process.get(), INFINITE);
    }
    if (process != nullptr) {
      *process = launch.started.process.release();
    }
    launch.started = {};
  }
  launch.keptDesktop.reset();
  launch.keptStation.reset();
}

}  // namespace

BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process) {
  const HWINSTA station = GetProcessWindowStation();
  const HDESK desktop = GetThreadDesktop(GetCurrentThreadId());
  OwnedKernelObject ownToken;
  GuardedCall([&] {
    ownToken.KeepIf(OpenProcessToken(GetCurrentProcess(),
                                     TOKEN_ASSIGN_PRIMARY | TOKEN_DUPLICATE | TOKEN_QUERY,
                                     ownToken.Receive()) != FALSE);
  });
  if (!internal::Check(static_cast<bool>(ownToken), L"RunAsUser OpenProcessToken On Self Failed")) {
    return FALSE;
  }
  // The token's handle stays open by design.
  const HANDLE token = internal::DuplicateAsPrimary(std::move(ownToken)).release();
  Launch launch;
  return internal::GuardedOperation(
      // Traced last when the steps below fail, even without an exception.
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
