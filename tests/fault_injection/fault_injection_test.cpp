#define SECURITY_WIN32
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>
#include <security.h>
#include <setupapi.h>
#include <winternl.h>
#include <wtsapi32.h>

#include <sstream>

#include "lib/platform/guarded_call.h"
#include "lib/platform/module.h"
#include "tests/fault_injection/interception.h"
#include "tests/fault_injection/operations.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

using enum Handles;
using Lines = std::vector<std::string>;

static const auto kWatched = std::to_array<Watched>({
#include "tests/fault_injection/watched.def"
});

// Is called instead of GetProcAddress. For a function in kWatched, returns its replacement.
static FARPROC WINAPI FindIntercepted(HMODULE module, LPCSTR name) {
  const FARPROC found = GetProcAddress(module, name);
  const auto row = std::ranges::find(kWatched, std::string(name), &Watched::name);
  if (found == nullptr || row == kWatched.end()) {
    return found;
  }
  interception.originals.try_emplace(row->name, reinterpret_cast<void*>(found));
  return reinterpret_cast<FARPROC>(row->instead);
}

// Redirects calls to a watched function to `instead`. The test can still make such a call fail.
#define SIMULATE(function, instead)   \
  interception.originals[#function] = \
      reinterpret_cast<void*>(static_cast<decltype(&::function)>(instead))

static Lines written;
// Simulates functions whose results depend on the machine. Collects the output in `written`.
static void SimulateMachine() {
  SIMULATE(GetProcAddress, FindIntercepted);
  SIMULATE(WriteFile, [](HANDLE file, auto bytes, DWORD size, DWORD* done, auto overlapped) {
    if (file != GetStdHandle(STD_OUTPUT_HANDLE) && file != GetStdHandle(STD_ERROR_HANDLE)) {
      return WriteFile(file, bytes, size, done, overlapped);
    }
    written.emplace_back(static_cast<const char*>(bytes), *done = size);
    return TRUE;
  });
  SIMULATE(GetModuleFileNameW, [](HMODULE, LPWSTR path, DWORD size) {
    return static_cast<DWORD>(  // as if this program were sorrel.exe
        std::filesystem::absolute("sorrel.exe").wstring().copy(path, size - 1));
  });
  SIMULATE(GetComputerNameExW, [](auto, LPWSTR name, auto...) -> BOOL {
    lstrcpyW(name, L"full name");
    return TRUE;
  });
  SIMULATE(GetUserNameExW, [](auto, LPWSTR name, auto...) -> BOOLEAN {
    lstrcpyW(name, L"full name");
    return TRUE;
  });
  SIMULATE(WTSQuerySessionInformationW, [](auto, auto, auto, LPWSTR* name, auto) -> BOOL {
    *name = static_cast<LPWSTR>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, 99));
    lstrcpyW(*name, L"client");
    return TRUE;
  });
  // Simulates a process that has ended, because Wine sometimes fails to start a real process.
  static constexpr auto kStart = [](auto... given) -> BOOL {
    *std::get<sizeof...(given) - 1>(std::tuple(given...)) = {
        CreateEventW(nullptr, TRUE, TRUE, nullptr), CreateEventW(nullptr, TRUE, TRUE, nullptr), 1,
        1};
    return TRUE;
  };
  SIMULATE(CreateProcessW, kStart);
  SIMULATE(CreateProcessAsUserW, kStart);
}

// Splits a text into lines, and drops line ends and empty lines.
static Lines LinesOf(const std::string& text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    std::erase(line, '\r');
    lines.insert(lines.end(), line.empty() ? 0 : 1, line);
  }
  return lines;
}

static std::string Joined(const char* before, const auto& lines, const char* after) {
  std::string text;
  for (const std::string& line : lines) {
    text += before + line + after;
  }
  return text;
}

// Prepares the machine for an operation (operations.h): removes test certificates, and creates the
// list of applications and the registry values and files that operations read. Loads the
// simulator's bthprops.cpl, so that an operation that loads "bthprops.cpl" gets this library.
struct Machine : ProgramFolder {
  Machine() : ProgramFolder({{L"versioned_english.dll", L"versioned_english.dll"}}) {
    LoadLibraryW((path / "bthprops.cpl").c_str());
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", L"journal");
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", L"1,0,Copying|3,5");
    Write("Tessalin.inf",
          "[Version]\r\nSignature=\"$Windows NT$\"\r\nProvider=Tessalin\r\nDriverVer=1\r\n");
    CopyFileW(L"Tessalin.inf", published.c_str(), FALSE);
  }
  ~Machine() { DeleteFileW(published.c_str()); }

  static void Prepare(const Operation& operation) {
    Clear();
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\kelvo faults");
    SetFileAttributesW(L"shared file", FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove("shared file");
    std::ofstream("shared file");
    StoreUnits(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", REG_SZ,
               operation.list + std::wstring(1, L'\0'));
    StoreUnits(HKEY_CURRENT_USER, L"Software\\kelvo faults values", L"number", REG_DWORD,
               std::wstring(L"\1\0", 2));
    StoreUnits(HKEY_LOCAL_MACHINE, L"System\\CurrentControlSet\\Control\\ProductOptions",
               L"ProductSuite", REG_MULTI_SZ, std::wstring(L"kelvo suite\0", 13));
  }

  // kFails: the chosen call fails. kEnds: the run ends before that call, as if the process were
  // killed. kContinues: like kFails, but the run starts from the previous run's final state.
  enum class How { kFails, kEnds, kContinues };

  // Reloads fault_injection_operations.dll and runs operation `index`. Returns the outcome as
  // lines: output, result, list of applications if it changed, certificates, open handles, unfreed
  // memory, and the simulator's journal. Returns no lines if there is no operation `index`.
  Lines Run(int index, const std::pair<std::string, int>& chosen, How how = How::kFails) {
    const OwnedModule library(LoadLibraryW(ProgramPath(L"fault_injection_operations.dll").c_str()));
    const auto* const operation =
        reinterpret_cast<const Operation*>(GetProcAddress(library.get(), "operations")) + index;
    if (operation->name == nullptr) {
      return {};
    }
    name = operation->name;
    if (how != How::kContinues) {
      Prepare(*operation);
    }
    std::filesystem::remove("journal");
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_RESULT",
                            name.find("refused.inf") != std::string::npos ? L"5" : L"0");
    interception = {{}, {}, {}, chosen, how == How::kEnds, {}};
    written.clear();
    WatchImports(library.get(), kWatched);
    SimulateMachine();
    static std::wstring answer;
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
    // Copies the call counts before the DLL is unloaded, because unloading makes more calls.
    calls = interception.calls;
    std::string text = Joined("", written, "");
    text = (name.starts_with("sorrel_status") ? Named(text) : text) + "= " + Ascii(answer) + "\n";
    if (const std::wstring list = Applications(); list != operation->list) {
      text += "list: " + Ascii(list) + "\n";
    }
    for (const wchar_t* store : {L"TrustedPublisher", L"CA"}) {
      const std::wstring subjects = SubjectsInStore(store);
      text += subjects.empty() ? "" : Ascii(store + (L": " + subjects)) + "\n";
    }
    reached = LinesOf(text);
    // Sorts open handles and unfreed memory by function name, because their order varies.
    std::multiset<std::string> open;
    for (const auto& [handle, functions] : interception.open) {
      open.insert("open " + functions.first);
    }
    return LinesOf(text + Joined("", open, "\n") + ReadBytes("journal"));
  }

  const std::wstring published = kInfFolder + L"oem8.inf";
  OwnedKernelObject mutex{CreateMutexW(nullptr, FALSE, L"Global\\kelvo faults")};
  std::string name;
  std::map<std::string, int> calls;
  // The outcome of the last run, except for open handles, unfreed memory and the journal.
  Lines reached;
};

// Appends `more` to the last line, or to a new line if the last line would exceed 120 columns.
static void Append(std::string& text, const std::string& more) {
  const std::size_t column = text.size() - (text.rfind('\n') + 1);
  text += (column + std::min(more.find('\r'), more.size()) > 120 ? "\r\n " : "") + more;
}

// If a call to one of these functions fails, sorrel.exe omits the line that needed the call.
const std::string kReporting = "GetStdHandle WriteFile _vscwprintf _vsnwprintf";
const Lines kNoMemory = {"sorrel_status: not enough memory", "= 3"};
const std::string kNoChange = " no change\r\n";

// Lists the numbers of the lines that only `before` has. Then lists the lines that only `after`
// has, each with the number of the line in `before` that it follows.
static std::string Changes(const Lines& before, const Lines& after) {
  std::string without;
  std::string added;
  auto at = after.begin();
  const auto add = [&](auto end, std::size_t line) {
    for (; at != end; ++at) {
      added += "+" + std::to_string(line) + " " + *at + "\r\n";
    }
  };
  for (std::size_t line = 0; line < before.size(); ++line) {
    const auto same = std::find(at, after.end(), before[line]);
    if (same == after.end()) {
      without += (without.empty() ? " without " : " ") + std::to_string(line + 1);
    } else {
      add(same, line);
      ++at;
    }
  }
  add(after.end(), before.size());
  return before == after ? kNoChange : without + "\r\n" + added;
}

// Checks the outcome of a run in which malloc failed: the result must be an exception, and all
// other lines must occur in the undisturbed run. This proves that the list of applications is
// the initial or the final one, and that no more handles are open than in the undisturbed run. The
// check is skipped if the operation has no output and another function's failure has this outcome.
static void CheckException(const Lines& undisturbed, const Lines& outcome) {
  const auto [first, instead] = std::ranges::mismatch(outcome, undisturbed);
  CHECK((first != outcome.end() && *first == "= an exception"));
  Lines most = undisturbed;
  std::ranges::replace_if(
      most, [](auto& line) { return line.starts_with("= "); }, "= an exception");
  const std::string changes = Changes(most, outcome);
  CHECK(changes.substr(changes.find('\n')) == "\n");
}

TEST_CASE("failing calls: each outcome follows a rule or is in fault_injection.txt") {
  Machine machine;
  std::string seen;
  std::set<std::string> shown;
  Lines undisturbed;
  for (int index = 0; !(undisturbed = machine.Run(index, {})).empty(); ++index) {
    shown.merge(interception.shown);
    const int lineCount = static_cast<int>(written.size());
    const auto calls = machine.calls;
    const bool isReport = machine.name.starts_with("sorrel_status");
    // The distinct outcomes for fault_injection.txt, each with the failing calls that cause it.
    std::vector<std::pair<Lines, std::string>> outcomes;
    // Outcomes that lack a line of the driver log because a function in kReporting failed. A failed
    // malloc can cause them, too, because DifxLogCallback catches the exception.
    std::set<Lines> withoutLogged;
    for (const auto& [function, made] : calls) {
      for (int nth = 1; nth <= made; ++nth) {
        INFO(machine.name, ": ", function, "-", nth, " of\n", Joined("", undisturbed, "\n"));
        const Lines outcome = machine.Run(index, {function, nth});
        auto known = std::ranges::find(outcomes, outcome, [](auto& row) { return row.first; });
        if (std::ranges::find(kWatched, function, &Watched::name)->closes) {
          CHECK(Changes(undisturbed, outcome) == kNoChange);
        } else if (isReport && function == "malloc") {
          // The whole report fails, unless GuardedCall in the library catches the exception.
          CHECK((outcome == kNoMemory || outcome.size() == undisturbed.size()));
        } else if (isReport && function.starts_with("_v")) {
          // A line may lack some text, but no line is missing.
          CHECK(outcome.size() == undisturbed.size());
        } else if (!isReport && kReporting.find(function) != std::string::npos &&
                   nth <= lineCount) {
          Lines expected = undisturbed;
          expected.erase(expected.begin() + nth - 1);
          CHECK(Changes(expected, outcome) == kNoChange);
          const std::string& line = undisturbed[static_cast<std::size_t>(nth) - 1];
          if (line.starts_with("INFO: 1 ") || line.starts_with("INFO: 3 ")) {
            withoutLogged.insert(expected);
          }
        } else if (function != "malloc") {
          known = known != outcomes.end() ? known : outcomes.insert(known, {outcome, "when"});
          std::string& failed = known->second;
          const bool isFirst = failed.find(" " + function + "-") == std::string::npos;
          Append(failed, (isFirst ? " " + function + "-" : " ") + std::to_string(nth));
        } else if (!(lineCount > 0 ? withoutLogged.contains(outcome)
                                   : known != outcomes.end() && outcome != undisturbed)) {
          CheckException(undisturbed, outcome);
        }
      }
    }
    seen += "# " + machine.name + (lineCount > 0 ? "" : Joined(" ", undisturbed, "")) + "\r\n";
    int number = 0;
    for (const std::string& line : lineCount > 0 ? undisturbed : Lines()) {
      seen += std::to_string(++number) + " " + line + "\r\n";
    }
    for (auto& [outcome, failed] : outcomes) {
      const bool isShort = lineCount == 0 && outcome != undisturbed;
      Append(failed, isShort ? Joined(" ", outcome, "") + "\r\n" : Changes(undisturbed, outcome));
      seen += failed;
    }
    seen += "\r\n";
  }
  CheckAgainstFile(seen, L"fault_injection.txt");
  CheckAgainstFile(Joined("", shown, "\r\n"), L"calls.txt");
}

TEST_CASE("install, uninstall: if a run is killed at any call, the next run completes the work") {
  Machine machine;
  for (const int index : {0, 2}) {  // install, uninstall
    machine.Run(index, {});
    const auto [calls, expected] = std::pair(machine.calls, machine.reached);
    for (const auto& [function, made] : calls) {
      // Skips malloc: a thread that ended in malloc would never release the C runtime's locks.
      for (int nth = 1; nth <= made && function != "malloc"; ++nth) {
        INFO(function, "-", nth);
        const Lines ended = machine.Run(index, {function, nth}, Machine::How::kEnds);
        REQUIRE(std::ranges::count(ended, "= ended") == 1);
        // install calls BluetoothSetLocalServiceInfo only after adding the application to the list.
        const bool isServiceSet = ended.back().starts_with("BluetoothSetLocalServiceInfo ");
        CHECK((!isServiceSet || std::ranges::count(ended, "list: kite;brindle") == 1));
        machine.Run(index, {}, Machine::How::kContinues);
        CHECK(Changes(expected, machine.reached) == kNoChange);
      }
    }
  }
}

#ifdef KELVO_CHECKS_ALL_IMPORTS
TEST_CASE("imported Windows functions: each is made to fail, or spared.txt says why not") {
  const OwnedModule library(LoadLibraryW(ProgramPath(L"fault_injection_operations.dll").c_str()));
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
