// The examples from the comments in the library's headers, each in a function, so that the compiler
// checks them. Nothing calls these functions.

#define SECURITY_WIN32
#include <windows.h>

#include <security.h>

#include "lib/platform/module.h"
#include "lib/platform/system_library.h"
#include "lib/process/process_readiness.h"
#include "lib/process/run_as_user.h"
#include "lib/process/session_process.h"
#include "lib/registry/registry_string.h"
#include "lib/security/file_access.h"
#include "lib/string/string_tokenizer.h"
#include "lib/sysinfo/system_report.h"
#include "lib/trace/debug_trace.h"
#include "lib/trace/trace_sink.h"
#include "lib/ui/localised_file.h"

// NOLINTBEGIN(misc-use-internal-linkage): unused functions with internal linkage cause warnings
namespace kelvo::examples {

BOOL RunAsUserExample() {
  wchar_t command[] = L"\"C:\\Program Files\\App\\app.exe\" /start";
  OwnedKernelObject process;
  const BOOL isStarted = RunAsUser(command, FALSE, process.Receive());
  return isStarted;
}

BOOL LaunchInUserSessionExample(DWORD& exitCode) {
  OwnedKernelObject process;
  LaunchInUserSession(L"C:\\App\\app.exe", L"/start", true, process.Receive());
  const BOOL hasExitCode = GetExitCodeProcess(process.get(), &exitCode);
  return hasExitCode;
}

StartResult StartAndWaitExample() {
  const StartResult result =
      StartProcessAndWaitForMutex(L"C:\\App\\app.exe", L"/start", false, L"App is ready", 10'000);
  return result;
}

BOOL AddFileAccessRightsExample() {
  const BOOL isAllowed =
      AddFileAccessRights(L"C:\\App\\log.txt", L"S-1-5-32-545", FILE_GENERIC_READ);
  return isAllowed;
}

void SystemReportExample(WString& log) {
  NameTextList report;
  CollectSystemReport(report);
  for (const auto& [name, text] : report) {
    log += name + L": " + text + L"\n";
  }
}

void TokenizerExample(const WString& list, void (*use)(const WString& item)) {
  for (StringTokenizer items(list, L";", true); items.HasMoreTokens();) {
    use(items.NextToken());
  }
}

WString RegistryReadStringExample() {
  const WString folder =
      RegistryReadString(HKEY_CURRENT_USER, L"Software\\App", L"Folder", L"C:\\App");
  return folder;
}

WString LocalisedFileExample() {
  const WString path = GetLocalisedFilePath(L"C:\\App", L"texts.dll", GetUserDefaultUILanguage(),
                                            LocalisedFileForm::kFolder);
  return path;
}

bool FindFunctionExample(wchar_t* name, DWORD size) {
  const OwnedModule library = LoadSystemLibrary(L"secur32.dll");
  auto* const getName = KELVO_FIND_FUNCTION(library.get(), GetUserNameExW);
  const bool isKnown = getName != nullptr && getName(NameDisplay, name, &size) != FALSE;
  return isKnown;
}

void TraceSinkExample() {
  SetTraceSink(
      [](const wchar_t* tag, const wchar_t* message) { DebugTrace(L"%s: %s", tag, message); });
}

// Unlike the other examples in this file, this example is not in any header. It shows that a
// WString can be used like a std::wstring.
std::size_t WStringExample(const WString& text) {
  std::size_t blanks = 0;
  for (const wchar_t unit : text) {
    blanks += unit == L' ' ? 1 : 0;
  }
  return text.size() > blanks && text[0] == *text.data() ? blanks : 0;
}

}  // namespace kelvo::examples
// NOLINTEND(misc-use-internal-linkage)
