#include <set>
#include <sstream>

#include "lib/string/utf8.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

// Paths in the throw-away Wine prefix.
static const std::wstring kLogs = L"C:\\windows\\logs\\";
static const std::wstring kStandIns = kLogs + L"stand_ins";
static const wchar_t* const kPublishedInf = L"C:\\windows\\inf\\oem97.inf";

// Copies of this program simulate pnputil and certutil, which Wine lacks or has only as stubs. If
// the environment variable "ends" is a failure code, a copy exits with it at once. Otherwise,
// it appends its name and all its arguments except the last to the file kStandIns. If told to
// delete kPublishedInf, it does so. If told to delete a stored certificate, it empties the store.
static const bool isStandIn = [] {
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  const std::wstring program = std::filesystem::path(self).stem();
  const std::wstring line = GetCommandLineW();
  const std::wstring words = line.substr(line.find(L"\" ") + 2);
  if (program == L"installers_tests") {
    return false;
  }
  RequireThrowAwayPrefix();
  const wchar_t* const ends = _wgetenv(L"ends");
  const auto code = static_cast<UINT>(ends != nullptr ? _wtoi(ends) : 0);
  if (code != 0 && code != ERROR_SUCCESS_REBOOT_REQUIRED) {
    ExitProcess(code);
  }
  std::ofstream(std::filesystem::path(kStandIns), std::ios::app | std::ios::binary)
      << ToUtf8(L"  " + program + L" " + words.substr(0, words.rfind(L' ')) + L"\n");
  const std::wstring thumbprint = words.substr(words.rfind(L' ') + 1);
  for (const std::wstring store : {L"TrustedPublisher", L"CA"}) {
    const std::wstring all =
        L"Software\\Microsoft\\SystemCertificates\\" + store + L"\\Certificates";
    if (words == L"-delstore " + store + L" " + thumbprint &&
        RegGetValueW(HKEY_LOCAL_MACHINE, (all + L"\\" + thumbprint).c_str(), L"Blob", RRF_RT_ANY,
                     nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, all.c_str());
    }
  }
  const bool isOld = GetEnvironmentVariableW(L"old_pnputil", nullptr, 0) != 0;
  if (words == (isOld ? L"-d oem97.inf" : L"/delete-driver oem97.inf /uninstall")) {
    std::filesystem::remove(kPublishedInf);
  }
  ExitProcess(code);
}();

// Simulates a user of a setup: in every dialog box, presses the button IDOK, or IDCANCEL if IDOK is
// hidden or disabled. Appends the box's title to the file kStandIns, followed by the box's message
// or, if the box has no message, by the button's text.
[[noreturn]] static DWORD WINAPI PressButtons(void*) {
  for (;; Sleep(20)) {
    for (HWND box = nullptr; (box = FindWindowExW(nullptr, box, L"#32770", nullptr)) != nullptr;) {
      for (const int id : {IDOK, IDCANCEL}) {
        const HWND button = GetDlgItem(box, id);
        if (!IsWindowEnabled(box) || !IsWindowVisible(button) || !IsWindowEnabled(button)) {
          continue;
        }
        // The handler that enables a button also sets the title. Waits until that handler returns.
        SendMessageTimeoutW(box, WM_NULL, 0, 0, 0, 5000, nullptr);
        const HWND message = GetDlgItem(box, 0xFFFF);
        wchar_t title[256];
        wchar_t text[1024];
        GetWindowTextW(box, title, 256);
        GetWindowTextW(message != nullptr ? message : button, text, 1024);
        std::ofstream(std::filesystem::path(kStandIns), std::ios::app | std::ios::binary)
            << "  " << ToUtf8(title) << ": " << Replaced(ToUtf8(text), "\r?\n", " / ") << "\n";
        SendMessageTimeoutW(button, BM_CLICK, 0, 0, 0, 5000, nullptr);
        break;
      }
    }
  }
}

// Returns the products that Windows lists under "Apps" (the registry key "Uninstall"), sorted. Sets
// the environment variable QUIET to the last product's silent uninstall command.
static std::wstring Apps() {
  HKEY key = nullptr;
  RegCreateKeyW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
                &key);
  const OwnedRegistryKey owned(key);
  std::set<std::pair<std::wstring, std::wstring>> apps;
  wchar_t name[256];
  for (DWORD i = 0; RegEnumKeyW(key, i, name, 256) == ERROR_SUCCESS; ++i) {
    const auto value = [&](const wchar_t* of) {
      wchar_t text[1024] = L"";
      DWORD size = sizeof(text);
      RegGetValueW(key, name, of, RRF_RT_REG_SZ, nullptr, text, &size);
      return std::wstring(text);
    };
    // Windows Installer does not write this value for an MSI package.
    const std::wstring quiet = value(L"QuietUninstallString");
    CHECK((quiet.empty() || quiet.starts_with(value(L"UninstallString") + L" /S ")));
    apps.emplace(L" " + value(L"DisplayName") + L" " + value(L"DisplayVersion") + L" by " +
                     value(L"Publisher"),
                 quiet);
  }
  std::wstring all;
  for (const auto& [app, quiet] : apps) {
    all += app;
    SetEnvironmentVariableW(L"QUIET", quiet.c_str());
  }
  return all;
}

static const std::filesystem::path kProducts[] = {L"C:\\Program Files\\Brindle",
                                                  L"C:\\Program Files\\\u017Dlu\u0165 & Co",
                                                  L"C:\\Program Files\\M\u00F6we Kit"};

// Returns the state of the machine in the format that the first lines of lifecycles.txt explain.
static std::string State() {
  std::wstring state = Applications() + L" | ";
  for (const wchar_t* store : {L"TrustedPublisher", L"CA"}) {
    const std::wstring subject = SubjectsInStore(store);
    state += subject.substr(subject.rfind(L' ') + 1, 1);
  }
  state += L" |";
  for (const std::filesystem::path& product : kProducts) {
    if (exists(product)) {
      const auto files = std::filesystem::directory_iterator(product);
      state += L" " + product.filename().wstring() + L" " +
               std::to_wstring(std::distance(begin(files), end(files)));
    }
  }
  state += L" |" + Apps();
  for (const auto& file : std::filesystem::directory_iterator(kLogs)) {
    state += file.path().extension() == ".log" ? L"" : L" | " + file.path().filename().wstring();
  }
  return "  " + ToUtf8(state) + "\n";
}

static void Reset() {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", REG_SZ, L"kite", 10);
  RemoveTestCertificates();
  std::filesystem::remove(kPublishedInf);
  std::filesystem::remove_all(kLogs);
  std::filesystem::create_directories(kLogs);
}

static std::wstring Expand(const std::wstring& text) {
  wchar_t expanded[8192];
  ExpandEnvironmentStringsW(text.c_str(), expanded, 8192);
  return expanded;
}

// Runs a command of lifecycles.txt and returns its exit code. Each leading NAME=VALUE sets an
// environment variable for the command; an upper-case NAME gets the prefix SORREL_SIMULATOR_.
static DWORD Run(std::wstring line) {
  std::vector<std::wstring> names;
  for (std::size_t end = 0; (end = line.find(L'=')) < line.find_first_of(L" \"");) {
    const std::size_t blank = line.find(L' ');
    names.push_back((IsCharLowerW(line[0]) ? L"" : L"SORREL_SIMULATOR_") + line.substr(0, end));
    SetEnvironmentVariableW(names.back().c_str(),
                            Expand(line.substr(end + 1, blank - end - 1)).c_str());
    line.erase(0, blank + 1);
  }
  const auto [code, output, errors] = RunChild(Expand(line));
  CHECK(output.find(">set ") == std::string::npos);  // batch files must not echo commands
  for (const std::wstring& name : names) {
    SetEnvironmentVariableW(name.c_str(), nullptr);
  }
  return code;
}

// Returns the command line of the detection rule in administrators.md that begins with `program`.
static std::wstring Rule(const std::string& program) {
  const std::string page = ReadBytes(ProgramPath(L"installers\\good\\files\\administrators.md"));
  const std::size_t start = page.find("\n" + program + " ") + 1;
  REQUIRE(start != 0);
  const std::string rule = page.substr(start, page.find('\n', start) - start);
  return Expand({rule.begin(), rule.end()});
}

// Prepares the folders, programs and environment variables that lifecycles.txt uses.
static void PutInPlace(const ScratchFolder& scratch) {
  for (const std::filesystem::path& folder : kProducts) {
    std::filesystem::remove_all(folder);
  }
  std::filesystem::remove_all(L"C:\\windows\\sysnative");
  // Lets programs create windows without an X11 display.
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\Drivers", L"Graphics", REG_SZ, L"null", 10);
  const std::wstring installers = ProgramPath(L"installers\\");
  std::filesystem::copy(installers + L"good\\files", scratch / L"A & \u017D!");
  std::filesystem::copy(installers + L"bad\\files", scratch / L"newer");
  for (const auto& [name, source] : {std::pair(L"pnputil.exe", L"installers_tests.exe"),
                                     {L"certutil.exe", L"installers_tests.exe"},
                                     {L"bthprops.cpl", L"simulator\\bthprops.cpl"},
                                     {L"difxapi.dll", L"simulator\\difxapi.dll"}}) {
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", name, REG_SZ, L"native",
                    14);
    const std::filesystem::path file = std::filesystem::path(L"C:\\windows\\system32") / name;
    std::filesystem::remove(file);
    std::filesystem::copy_file(ProgramPath(source), file);
  }
  for (const auto& [name, value] :
       {std::pair(L"RULE", Rule("\"%ProgramW6432%\\Brindle\\sorrel_status.exe\"")),
        {L"VERSION_RULE", Rule("find")},
        {L"GOOD", installers + L"good"},
        {L"BAD", installers + L"bad"},
        {L"OTHER", installers + L"f\u00FCr andere"},
        {L"FROM", scratch / L"A & \u017D!"},
        {L"FOLDER", L"C:\\Program Files\\\u017Dlu\u0165 & Co"},
        {L"NEWER", scratch / L"newer"},
        {L"EVENTS", L"1,0,ERR: Reboot required by none|1,0," + std::wstring(1002, L'x') +
                        L"ERR: amid a line"}}) {
    SetEnvironmentVariableW(name, value.c_str());
  }
}

TEST_CASE("deploy.cmd, remove_all.cmd, setups: lifecycles match lifecycles.txt") {
  const CleanMachine machine;
  const ScratchFolder scratch;
  // Unregisters the products of an earlier build. Otherwise, Windows Installer would not remove the
  // files that they share with this build's products.
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Installer");
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
  PutInPlace(scratch);
  CloseHandle(CreateThread(nullptr, 0, PressButtons, nullptr, 0, nullptr));
  std::istringstream lines(ReadBytes(ProgramPath(L"expected\\lifecycles.txt")));
  std::string seen;
  std::string before;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t prompt = line.find("> ");
    if (line.starts_with("  ")) {
      continue;
    }
    if (prompt == std::string::npos) {
      Reset();
      before = State();
      seen += line + "\n";
      continue;
    }
    const std::string command = line.substr(prompt + 2);
    const DWORD code = Run(std::filesystem::path(std::u8string(command.begin(), command.end())));
    seen += std::to_string(code) + " > " + command + "\n" + ReadBytes(kStandIns);
    std::filesystem::remove(kStandIns);
    if (const std::string state = State(); state != before) {
      seen += state;
      before = state;
    }
  }
  CheckAgainstFile(seen, L"lifecycles.txt");
}
