
#define SECURITY_WIN32
#include <windows.h>

#include <security.h>

#include <numeric>
#include <set>

#include "lib/platform/guarded_call.h"
#include "lib/platform/module.h"
#include "lib/registry/registry_string.h"
#include "lib/string/format_text.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"
#include "tests/sweep/interception.h"
#include "tests/sweep/operations.h"
#include "tool/dependent_applications.h"

// How each function fails, and whether it opens or closes.
static constexpr auto kNone = Handles::kNone, kOpens = Handles::kOpens, kCloses = Handles::kCloses;
static const auto kWatched = std::to_array<Watched>({
    WATCH(AdjustTokenPrivileges, FALSE, kNone),
    WATCH(AllocateAndInitializeSid, FALSE, kOpens),
    WATCH(CertAddCertificateContextToStore, FALSE, kNone),
    WATCH(CertCloseStore, FALSE, kCloses),
    WATCH(CertFreeCertificateContext, FALSE, kCloses),
    WATCH(CertOpenStore, 0, kOpens),
    WATCH(CloseHandle, FALSE, kCloses),
    WATCH(CryptQueryObject, FALSE, kOpens),
    WATCH(ExpandEnvironmentStringsW, 0, kNone),
    WATCH(FindClose, FALSE, kCloses),
    WATCH(FindFirstFileW, -1, kOpens),
    WATCH(FormatMessageW, 0, kNone),
    WATCH(FreeLibrary, FALSE, kCloses),
    WATCH(FreeSid, 0, kCloses),
    WATCH(GetComputerNameExW, FALSE, kNone),
    WATCH(GetComputerNameW, FALSE, kNone),
    WATCH(GetDC, 0, kOpens),
    WATCH(GetFileVersionInfoSizeW, 0, kNone),
    WATCH(GetFileVersionInfoW, FALSE, kNone),
    WATCH(GetModuleFileNameW, 0, kNone),
    WATCH(GetProcAddress, 0, kNone),
    WATCH(GetStdHandle, -1, kNone),
    WATCH(GetSystemDirectoryW, 0, kNone),
    WATCH(GetTokenInformation, FALSE, kNone),
    WATCH(GetUserNameExW, FALSE, kNone),
    WATCH(GetUserNameW, FALSE, kNone),
    WATCH(GetVersionExW, FALSE, kNone),
    WATCH(GlobalAlloc, 0, kOpens),
    WATCH(GlobalFree, 0, kCloses),
    WATCH(GlobalLock, 0, kNone),
    WATCH(LCMapStringW, 0, kNone),
    WATCH(LoadLibraryA, 0, kOpens),
    WATCH(LoadLibraryExW, 0, kOpens),
    WATCH(LoadLibraryW, 0, kOpens),
    WATCH(LocalAlloc, 0, kOpens),
    WATCH(LocalFree, 1, kCloses),
    WATCH(LookupPrivilegeValueW, FALSE, kNone),
    WATCH(OpenProcessToken, FALSE, kOpens),
    WATCH(OpenThreadToken, FALSE, kOpens),
    WATCH(RegCloseKey, kFailure, kCloses),
    WATCH(RegCreateKeyExW, kFailure, kOpens),
    WATCH(RegDeleteKeyExW, kFailure, kNone),
    WATCH(RegDeleteValueW, kFailure, kNone),
    WATCH(RegEnumKeyExW, kFailure, kNone),
    WATCH(RegEnumValueW, kFailure, kNone),
    WATCH(RegOpenKeyExW, kFailure, kOpens),
    WATCH(RegQueryInfoKeyW, kFailure, kNone),
    WATCH(RegQueryValueExW, kFailure, kNone),
    WATCH(RegSetValueExW, kFailure, kNone),
    WATCH(ReleaseDC, 0, kCloses),
    WATCH(VerQueryValueW, FALSE, kNone),
    WATCH(WriteFile, FALSE, kNone),
    WATCH(_vscwprintf, -1, kNone),
    WATCH(_vsnwprintf, -1, kNone),
    WATCH(malloc, 0, kNone),
});

// What an operation looks up is intercepted as well as what it imports.
static FARPROC WINAPI FindIntercepted(HMODULE module, LPCSTR name) {
  const FARPROC found = GetProcAddress(module, name);
  const auto row = std::ranges::find(kWatched, std::string(name), &Watched::name);
  if (found == nullptr || row == kWatched.end()) {
    return found;
  }
  interception.originals[row->name] = reinterpret_cast<void*>(found);
  return reinterpret_cast<FARPROC>(row->instead);
}

static std::string written;
static BOOL WINAPI KeepWritten(HANDLE, const void* bytes, DWORD size, DWORD* done, OVERLAPPED*) {
  written.append(static_cast<const char*>(bytes), size);
  return (*done = size) != 0;
}

// As if the program stood beside the simulator's libraries.
static DWORD WINAPI NameSimulatedProgram(HMODULE, LPWSTR path, DWORD size) {
  return static_cast<DWORD>(ProgramPath(L"simulator\\sorrel.exe").copy(path, size - 1));
}

// A list of applications recorded, no certificate in either store; the simulator's
// Bluetooth library loaded, where an operation finds it by its name.
struct Machine {
  Machine() {
    std::filesystem::current_path(ProgramPath(L"certificates"));
    LoadLibraryW(ProgramPath(L"simulator\\bthprops.cpl").c_str());
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", journal.c_str());
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", L"1,0,Copying|3,5");
  }

  // Runs an operation in a library where nothing has run yet, and tells all that came of it;
  // nothing when the table has no more.
  std::string Run(int index, const std::pair<std::string, int>& failing) {
    const OwnedModule library(LoadLibraryW(ProgramPath(L"sweep_operations.dll").c_str()));
    const auto* const operation =
        reinterpret_cast<const Operation*>(GetProcAddress(library.get(), "operations")) + index;
    if (operation->name == nullptr) {
      return {};
    }
    name = operation->name;
    RegistryWriteString(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName,
                        operation->list);
    RemoveTestCertificates();
    std::filesystem::remove(journal);
    interception = {};
    interception.failing = failing;
    written.clear();
    WatchImports(library.get(), kWatched);
    interception.originals["GetProcAddress"] = reinterpret_cast<void*>(FindIntercepted);
    interception.originals["GetModuleFileNameW"] = reinterpret_cast<void*>(NameSimulatedProgram);
    interception.originals["WriteFile"] = reinterpret_cast<void*>(KeepWritten);
    const std::wstring answer = GuardedAnswer(std::wstring(L"died"), operation->run);
    // Before the library is unloaded.
    calls = interception.calls;
    // By name: handles come in any order.
    std::multiset<std::string> names;
    for (const auto& [handle, function] : interception.open) {
      names.insert(" " + function);
    }
    const auto leftOpen = std::accumulate(names.begin(), names.end(), std::string());
    const WString state =
        FormatText(L"= %s [%s] [%s] [%s]", answer.c_str(), ReadApplicationList().c_str(),
                   SubjectsInStore(L"TrustedPublisher").c_str(), SubjectsInStore(L"CA").c_str());
    std::string all = written + Ascii(state.c_str()) + leftOpen + "\r\n" + ReadBytes(journal);
    // What is not text would make the file of expectations no text either.
    std::ranges::replace_if(all, [](char byte) { return byte < '\n' || byte > '~'; }, '?');
    return all;
  }

  std::string name;
  std::map<std::string, int> calls;
  CleanMachine clean;
  ScratchFolder folder;
  std::filesystem::path journal = folder / "journal";
};

TEST_CASE("each call that fails has the consequences that stand in sweep.txt, and no others") {
  Machine machine;
  std::string seen;
  std::string undisturbed;
  for (int index = 0; !(undisturbed = machine.Run(index, {})).empty(); ++index) {
    // What came of it, and the calls whose failure leads there, in the order of the table.
    std::vector<std::array<std::string, 2>> outcomes = {{undisturbed, ""}};
    const auto calls = machine.calls;
    for (const auto& [function, made] : calls) {
      for (int nth = 1; nth <= made; ++nth) {
        const std::string outcome = machine.Run(index, {function, nth});
        auto known = std::ranges::find(outcomes, outcome, [](auto& row) { return row[0]; });
        if (known == outcomes.end()) {
          known = outcomes.insert(known, {outcome, ""});
        }
        // How often memory is asked for is the compiler's business.
        const std::string call =
            " " + function + (function == "malloc" ? "" : "-" + std::to_string(nth));
        known->at(1) += known->at(1).ends_with(" malloc") ? "" : call;
      }
    }
    seen += "# " + machine.name + "\r\n\r\n";
    for (const auto& [outcome, failed] : outcomes) {
      seen += ">" + failed + "\r\n" + outcome + "\r\n";
    }
  }
  CheckAgainstFile(seen, L"sweep.txt");
}
