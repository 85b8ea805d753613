#include "tool/command_line.h"

#include <windows.h>

#include <array>
#include <cwchar>

#include "tool/console_report.h"
#include "tool/dependent_applications.h"
#include "tool/driver_privilege.h"
#include "tool/handsfree_service.h"
#include "tool/install.h"

namespace kelvo {

namespace {

using Arguments = const wchar_t* const*;

constexpr int kUsageExitCode = 2;

DWORD EnablePrivilegeAndSetService(bool enable) {
  EnableLoadDriverPrivilege();
  return RegisterHandsfreeService(enable);
}

DWORD RunInstall(Arguments arguments) {
  return Install(arguments[2], arguments[3], arguments[4], arguments[5]);
}

// Leaves the driver package installed, and therefore ignores arguments[2], the package's INF path.
// The uninstall command has this argument only because the install command has it.
DWORD RunUninstall(Arguments arguments) {
  EnableLoadDriverPrivilege();
  bool noneLeft = false;
  RemoveDependentApplication(arguments[3], noneLeft);
  if (noneLeft) {
    RegisterHandsfreeService(false);
  }
  return ERROR_SUCCESS;
}

DWORD RunRegister(Arguments /*arguments*/) { return EnablePrivilegeAndSetService(true); }

DWORD RunUnregister(Arguments /*arguments*/) { return EnablePrivilegeAndSetService(false); }

DWORD RunRegisterFor(Arguments arguments) {
  AddDependentApplication(arguments[2]);
  return EnablePrivilegeAndSetService(true);
}

DWORD RunUnregisterFor(Arguments arguments) {
  bool noneLeft = false;
  RemoveDependentApplication(arguments[2], noneLeft);
  return noneLeft ? EnablePrivilegeAndSetService(false) : ERROR_SUCCESS;
}

struct CommandForm {
  int argumentCount;
  const wchar_t* keyword;
  DWORD (*run)(Arguments arguments);
};

constexpr std::array kCommandForms = {
    CommandForm{6, L"install", RunInstall},      CommandForm{4, L"uninstall", RunUninstall},
    CommandForm{2, L"register", RunRegister},    CommandForm{2, L"unregister", RunUnregister},
    CommandForm{3, L"register", RunRegisterFor}, CommandForm{3, L"unregister", RunUnregisterFor},
};

// Never change these texts, because setup programs compare the output with them. Do not even add
// the line breaks that are missing after the examples.
constexpr std::array kUsageTexts = {
    L"invalid arguments\n",
    L"install: Install Certificate, Driver and Register Service, remember dependant application\n",
    L"    sorrel.exe install Tessalin.inf trusted.cer trusted_i.cer brindle",
    L"uninstall: Unregister Service, remove dependant application\n",
    L"    sorrel.exe uninstall Tessalin.inf brindle",
    L"register: Register Handsfree Service\n",
    L"    sorrel.exe register",
    L"unregister: Unregister Handsfree Service\n",
    L"    sorrel.exe unregister",
};

}  // namespace

int RunCommandLine(int count, const wchar_t* const* arguments) {
  for (const CommandForm& form : kCommandForms) {
    if (form.argumentCount == count && std::wcscmp(arguments[1], form.keyword) == 0) {
      return static_cast<int>(form.run(arguments));
    }
  }
  for (const wchar_t* text : kUsageTexts) {
    Report(text);
  }
  return kUsageExitCode;
}

}  // namespace kelvo
