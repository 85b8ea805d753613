#define SECURITY_WIN32
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>
#include <security.h>
#include <winternl.h>
#include <wtsapi32.h>

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

using enum Handles;
static const auto kWatched = std::to_array<Watched>({
#include "tests/sweep/watched.def"
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
static std::wstring answer;
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
    std::freopen(standardError.string().c_str(), "w", stderr);
  }

  // kFails: the chosen call fails. kEnds: it ends the run, like an ended process. kGoesOn: no call
  // fails, and the run begins with what the last one left.
  enum class How { kFails, kEnds, kGoesOn };

  // Runs an operation in a library where nothing has run yet, and tells all that came of it;
  // nothing when the table has no more.
  std::string Run(int index, const std::pair<std::string, int>& chosen, How how = How::kFails) {
    const OwnedModule library(LoadLibraryW(ProgramPath(L"sweep_operations.dll").c_str()));
    const auto* const operation =
        reinterpret_cast<const Operation*>(GetProcAddress(library.get(), "operations")) + index;
    if (operation->name == nullptr) {
      return {};
    }
    name = operation->name;
    if (how != How::kGoesOn) {
      RegistryWriteString(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName,
                          operation->list);
      RemoveTestCertificates();
    }
    std::filesystem::remove(journal);
    std::filesystem::remove("shared file");
    std::ofstream("shared file");
    interception = {{}, {}, {}, chosen, how == How::kEnds, {}};
    written.clear();
    WatchImports(library.get(), kWatched);
    interception.originals["GetProcAddress"] = reinterpret_cast<void*>(FindIntercepted);
    interception.originals["GetModuleFileNameW"] = reinterpret_cast<void*>(NameSimulatedProgram);
    interception.originals["WriteFile"] = reinterpret_cast<void*>(KeepWritten);
    answer = L"ended";
    const OwnedKernelObject thread(CreateThread(
        nullptr, 0,
        [](void* run) -> DWORD {
          answer =
              GuardedAnswer(std::wstring(L"died"), reinterpret_cast<decltype(Operation::run)>(run));
          return 0;
        },
        reinterpret_cast<void*>(operation->run), 0, nullptr));
    WaitForSingleObject(thread.get(), INFINITE);
    // Before the library is unloaded.
    calls = interception.calls;
    transcript = interception.transcript;
    // By name: handles come in any order.
    std::multiset<std::string> names;
    for (const auto& [handle, function] : interception.open) {
      names.insert(" " + function);
    }
    const auto leftOpen = std::accumulate(names.begin(), names.end(), std::string());
    const WString state =
        FormatText(L"= %s [%s] [%s] [%s]", answer.c_str(), ReadApplicationList().c_str(),
                   SubjectsInStore(L"TrustedPublisher").c_str(), SubjectsInStore(L"CA").c_str());
    reached = written + Ascii(state.c_str());
    std::string all = reached + leftOpen + "\r\n" + ReadBytes(journal) + ReadBytes(standardError);
    // What is not text would make the file of expectations no text either.
    std::ranges::replace_if(all, [](char byte) { return byte < '\n' || byte > '~'; }, '?');
    return all;
  }

  std::string name;
  std::map<std::string, int> calls;
  std::string transcript;
  // The lines, what was answered, the list and the stores.
  std::string reached;
  CleanMachine clean;
  ScratchFolder folder;
  std::filesystem::path journal = folder / "journal";
  std::filesystem::path standardError = folder / "standard error";
};

TEST_CASE("each call that fails has the consequences that stand in sweep.txt, and no others") {
  Machine machine;
  std::string seen;
  std::string undisturbed;
  std::string transcripts;
  for (int index = 0; !(undisturbed = machine.Run(index, {})).empty(); ++index) {
    // What came of it, and the calls whose failure leads there, in the order of the table.
    std::vector<std::array<std::string, 2>> outcomes = {{undisturbed, ""}};
    transcripts += "# " + machine.name + "\r\n\r\n" + machine.transcript + "\r\n";
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
  CheckAgainstFile(transcripts, L"calls.txt");
}

TEST_CASE("a command that is ended at any call leaves what its next run completes") {
  Machine machine;
  for (const int index : {0, 2}) {
    machine.Run(index, {});
    const auto [calls, expected] = std::pair(machine.calls, machine.reached);
    for (const auto& [function, made] : calls) {
      // Ended where memory is asked for, a run keeps the C runtime's locks.
      for (int nth = 1; nth <= made && function != "malloc"; ++nth) {
        INFO(function, "-", nth);
        machine.Run(index, {function, nth}, Machine::How::kEnds);
        REQUIRE(answer == L"ended");
        machine.Run(index, {}, Machine::How::kGoesOn);
        CHECK(machine.reached == expected);
      }
    }
  }
}

#ifdef KELVO_KNOWS_ALL_IMPORTS
TEST_CASE("every imported function is made to fail, or spared.txt says why it is not") {
  const OwnedModule library(LoadLibraryW(ProgramPath(L"sweep_operations.dll").c_str()));
  std::string known = ReadBytes(ProgramPath(L"expected\\spared.txt"));
  for (const Watched& watched : kWatched) {
    known += watched.name + std::string(" ");
  }
  VisitImports(library.get(), [&](const std::string& from, const std::string& name, BYTE*) {
    CAPTURE(name);
    CHECK((from == "msvcrt.dll" || known.find(name + " ") != std::string::npos));
    return false;
  });
}
#endif
