#include "tests/fault_injection/operations.h"

#include <windows.h>

#include <sddl.h>

#include <array>

#include "lib/paths/file_exists.h"
#include "lib/paths/shell_folder_path.h"
#include "lib/platform/owned.h"
#include "lib/process/process_readiness.h"
#include "lib/process/remote_client.h"
#include "lib/process/run_as_user.h"
#include "lib/process/session_process.h"
#include "lib/process/shutdown_privilege.h"
#include "lib/registry/registry_binary.h"
#include "lib/registry/registry_key.h"
#include "lib/registry/registry_key_tree.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/registry/registry_value_list.h"
#include "lib/security/file_access.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/process_privilege.h"
#include "lib/security/token_object_access.h"
#include "lib/security/token_privileges.h"
#include "lib/sysinfo/administrators.h"
#include "lib/sysinfo/color_depth.h"
#include "lib/sysinfo/common_controls_version.h"
#include "lib/sysinfo/computer_name.h"
#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "lib/sysinfo/system_directories.h"
#include "lib/sysinfo/terminal_server.h"
#include "lib/sysinfo/user_name.h"
#include "lib/sysinfo/vista_elevation.h"
#include "status/answer.h"
#include "tool/command_line.h"
#include "tool/dependent_applications.h"

using namespace kelvo;

namespace {

template <typename Run>
std::wstring Answer(Run run) {
  try {
    return std::wstring(std::wstring_view(run()));
  } catch (...) {
    return L"an exception";
  }
}

WString Text(long long number) { return std::to_wstring(number).c_str(); }
wchar_t buffer[MAX_PATH];
TOKEN_ELEVATION_TYPE elevation;
// Replaces a text that varies by machine. Keeps "full name", which simulated functions return.
WString IsThere(const WString& text) {
  if (text.empty()) {
    return L"nothing";
  }
  return text == L"full name" ? text : L"a text";
}

WString AllowEvent() {
  OwnedLocalMemory<void> emptyList;
  ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:", SDDL_REVISION_1, emptyList.Receive(),
                                                       nullptr);
  SECURITY_ATTRIBUTES attributes = {sizeof(attributes), emptyList.get(), FALSE};
  const OwnedKernelObject event(CreateEventW(&attributes, FALSE, FALSE, nullptr));
  const BOOL answer = ModifySecurity(event.get(), SYNCHRONIZE);
  DWORD size = 0;
  GetKernelObjectSecurity(event.get(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  return Text(answer && size > sizeof(SECURITY_DESCRIPTOR_RELATIVE) + sizeof(ACL));
}

WString AllowDesktop() {
  HDESK const desktop = CreateDesktopW(L"kelvo faults", nullptr, nullptr, 0, GENERIC_ALL, nullptr);
  const BOOL answer =
      AllowTokenFullAccessToObject(GetCurrentProcessToken(), desktop, SE_WINDOW_OBJECT, L"Desktop");
  CloseDesktop(desktop);
  return Text(answer);
}

WString CountPrivileges() {
  DWORD count = 0;
  const OwnedLocalMemory<TOKEN_PRIVILEGES> made(CreateTokenPriv(&count, nullptr, TRUE));
  return made ? Text(count) : L"none";
}

WString ReadList() {
  RegistryAccessFlags = KEY_WOW64_64KEY;
  WString texts;
  for (const auto& [name, text] : ReadRegistryKeyValues(HKEY_LOCAL_MACHINE, ServiceParametersKey)) {
    texts += name + L"=" + text;
  }
  return texts;
}

WString WriteAndDelete() {
  RegistryAccessFlags = KEY_WOW64_64KEY;
  constexpr const wchar_t* kKey = L"Software\\kelvo faults\\key";
  const std::string bytes = "1";
  std::string read;
  WString answers = Text(RegistryWriteBinary(HKEY_CURRENT_USER, kKey, L"n", bytes));
  answers += L" " + Text(RegistryReadBinary(HKEY_CURRENT_USER, kKey, L"n", read));
  answers += L" " + Text(read == bytes);
  answers += L" " + Text(RegistryValueExists(HKEY_CURRENT_USER, kKey, L"n"));
  answers += L" " + Text(RegistryDeleteValue(HKEY_CURRENT_USER, kKey, L"n"));
  answers += L" " + Text(RegistryDeleteKeyTree(HKEY_CURRENT_USER, L"Software", L"kelvo faults"));
  return answers;
}

// If RunCommandLine throws, the result is "an exception". sorrel.exe would then end with code 3.
#define COMMAND(list, ...)                                                                     \
  Operation {                                                                                  \
    #__VA_ARGS__, list, [] {                                                                   \
      const std::array arguments = {L"sorrel.exe", __VA_ARGS__};                               \
      return Answer([&] { return Text(RunCommandLine(arguments.size(), arguments.data())); }); \
    }                                                                                          \
  }
#define REPORT(...)                                                                               \
  Operation {                                                                                     \
    "sorrel_status " #__VA_ARGS__, L"kite", [] {                                                  \
      const std::array arguments = {L"sorrel_status.exe", __VA_ARGS__};                           \
      return Answer([&] { return Text(AnswerCommandLine(arguments.size(), arguments.data())); }); \
    }                                                                                             \
  }
#define CALL(...)                                                            \
  Operation {                                                                \
    #__VA_ARGS__, L"%OS%", [] { return Answer([] { return __VA_ARGS__; }); } \
  }

}  // namespace

extern "C" __declspec(dllexport) const Operation operations[] = {
#include "tests/fault_injection/operations.def"
    {nullptr, nullptr, nullptr}};
