#include "tests/support/applications.h"
#include "tests/support/testing.h"

// The log of the last run, in a prefix that is thrown away.
static const wchar_t* const kLog = L"C:\\windows\\logs\\sorrel_brindle.log";

// How a setup is run. `folder` is where the product goes.
struct Installer {
  std::filesystem::path folder;
  std::wstring install, installBadCertificate, uninstall;
  bool takesBack = true;
  // Its lines are read by run_sorrel.cmd.
  bool readsItself = true;
};

// What the simulator is told, and what a setup makes of it.
struct Case {
  const char* name;
  DWORD code;
  const wchar_t* driver = L"0";
  const wchar_t* reboot = L"0";
  std::wstring log = L"1,0,one";
  const wchar_t* crash = L"0";
  bool bluetooth = true;
  bool badCertificate = false;
};

constexpr std::size_t kCasesOfInstaller = 5;
constexpr DWORD kFailure = 1603;

static std::wstring Events(int count) {
  return count == 0 ? L""
                    : L"1,0,ERR: Reboot required by none of these many words|" + Events(count - 1);
}

static std::vector<Case> Cases() {
  const std::wstring longLine = L"1,0," + std::wstring(1002, L'x') + L"ERR: amid a line|";
  return {
      // What is to be seen of the installer itself, kCasesOfInstaller.
      {"driver installed", 0},
      {"publisher not trusted", kFailure, L"0xE0000242"},
      {"restart", 3010, L"0", L"1"},
      {"failure and restart", kFailure, L"5", L"1"},
      {"no certificate", kFailure, L"0", L"0", L"1,0,one", L"0", true, true},
      // What is to be seen of the reading of the lines.
      {"preinstalled", 0, L"0xE000020B"},
      {"preinstalled, the other code", 0, L"0xE0000301"},
      {"no update needed", 0, L"0x103"},
      {"driver fails", kFailure, L"5"},
      {"long log, success", 0, L"0", L"0", Events(30) + longLine},
      {"long log, failure", kFailure, L"0xE0000242", L"0", Events(30)},
      {"long log, restart", 3010, L"0", L"1", Events(30)},
      {"the tool ends abnormally", kFailure, L"0", L"0", L"1,0,last", L"1"},
      {"no Bluetooth library", 0, L"0", L"0", L"1,0,one", L"0", false},
  };
}

static DWORD RegisteredProducts() {
  HKEY key = nullptr;
  RegCreateKeyW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
                &key);
  const OwnedRegistryKey owned(key);
  DWORD count = 0;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                   nullptr, nullptr, nullptr);
  return count;
}

static void Prepare(const Installer& installer, const Case& row) {
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_RESULT", row.driver);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_REBOOT", row.reboot);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", row.log.c_str());
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", row.crash);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", REG_SZ, L"kite", 10);
  RemoveTestCertificates();
  std::filesystem::remove(kLog);
  std::filesystem::create_directories(installer.folder);
  for (const auto& [file, isThere] :
       {std::pair(L"difxapi.dll", true), {L"bthprops.cpl", row.bluetooth}}) {
    std::filesystem::remove(installer.folder / file);
    if (isThere) {
      std::filesystem::copy_file(ProgramPath(L"simulator") + L"\\" + file, installer.folder / file);
    }
  }
}

// What the companion ends with: 0 present, 1 absent.
static DWORD Status(const std::wstring& words) {
  return RunChild(L"\"" + ProgramPath(L"sorrel_status.exe") + L"\" " + words).exitCode;
}

static void CheckEachCase(const Installer& installer) {
  const CleanMachine machine;
  const std::wstring good = L"\"" + ProgramPath(L"installers\\good\\files\\");
  std::vector<Case> cases = Cases();
  if (!installer.readsItself) {
    cases.resize(kCasesOfInstaller);
  }
  for (const Case& row : cases) {
    INFO(row.name);
    Prepare(installer, row);
    const DWORD products = RegisteredProducts();
    CHECK(RunChild(row.badCertificate ? installer.installBadCertificate : installer.install)
              .exitCode == row.code);
    const bool failed = row.code == kFailure;
    CHECK(Status(L"--publisher " + good + L"trusted.cer\" --intermediate " + good +
                 L"trusted_i.cer\"") == (row.badCertificate ? 1 : 0));
    const std::string log = ReadBytes(kLog);
    CHECK(log.find("INFO: 1 - ") != std::string::npos);
    CHECK((log.find("ERR: no Bluetooth") == std::string::npos) == row.bluetooth);
    if (!failed) {
      CHECK(Status(L"--application brindle") == 0);
      CHECK(Applications() == L"kite;brindle");
      CHECK(RunChild(installer.uninstall).exitCode == 0);
    } else if (!installer.takesBack) {
      RunChild(installer.uninstall);
    }
    CHECK(Status(L"--application brindle") == 1);
    CHECK(Applications() == L"kite");
    CHECK(RegisteredProducts() == products);
    CHECK(std::filesystem::exists(installer.folder / "sorrel.exe") == !installer.takesBack);
  }
}

TEST_CASE("run_sorrel.cmd") {
  const ScratchFolder scratch;
  const std::filesystem::path folder = scratch / L"\u017Dlu\u0165 & Co";
  std::filesystem::create_directories(folder);
  for (const auto& file :
       std::filesystem::directory_iterator(ProgramPath(L"installers\\good\\files"))) {
    std::filesystem::copy_file(file.path(), folder / file.path().filename());
  }
  const auto command = [&](const wchar_t* file, const std::wstring& words) {
    return L"cmd /s /c \"\"" + std::wstring(folder / file) + L"\" " + words + L"\"";
  };
  const auto quoted = [&](const wchar_t* file) {
    return L"\"" + std::wstring(folder / file) + L"\" ";
  };
  const std::wstring inf = quoted(L"Tessalin.inf");
  CheckEachCase(
      {.folder = folder,
       .install = command(L"deploy.cmd", L""),
       .installBadCertificate = command(
           L"run_sorrel.cmd", L"install " + inf + inf + quoted(L"trusted_i.cer") + L"brindle"),
       .uninstall = command(L"run_sorrel.cmd", L"uninstall none brindle"),
       .takesBack = false});
  SetEnvironmentVariableW(L"errorlevel", L"0");
  CHECK(RunChild(command(L"run_sorrel.cmd", L"wrong words")).exitCode == 1603);
  SetEnvironmentVariableW(L"errorlevel", nullptr);
  // As on a full disk: a program of Wine's that ends with 0 and writes nothing.
  std::filesystem::rename(folder / L"sorrel.exe", folder / L"away.exe");
  std::filesystem::copy_file(L"C:\\windows\\system32\\where.exe", folder / L"sorrel.exe");
  CHECK(RunChild(command(L"run_sorrel.cmd", L"register")).exitCode == 1603);
}

TEST_CASE("the NSIS setup") {
  const std::filesystem::path folder = L"C:\\Program Files\\\u017Dlu\u0165 & Co";
  const auto setup = [&](const wchar_t* kind, const std::wstring& to) {
    return L"\"" + ProgramPath(kind) + L"\\brindle_setup.exe\" /S /D=" + to;
  };
  const std::wstring uninstall = L"\"" + std::wstring(folder / "uninstall.exe") + L"\" /S _?=";
  CheckEachCase({.folder = folder,
                 .install = setup(L"installers\\good", folder),
                 .installBadCertificate = setup(L"installers\\bad", folder),
                 .uninstall = uninstall + std::wstring(folder)});
  // Elsewhere a user could replace what a setup or a removal runs: nothing of it may begin.
  const CleanMachine machine;
  std::filesystem::remove(kLog);
  for (const wchar_t* const elsewhere :
       {L"C:\\Brindle", L"C:\\Program Files\\..\\Brindle", L"C:\\Program Files (x86)\\Brindle",
        L"C:\\Program Files\\%x%"}) {
    CHECK(RunChild(setup(L"installers\\good", elsewhere)).exitCode == kFailure);
    CHECK(RunChild(uninstall + elsewhere).exitCode == kFailure);
    CHECK_FALSE(std::filesystem::exists(kLog));
  }
}

TEST_CASE("the MSI package") {
  // No product of an earlier build may hold on to the files.
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Installer");
  const auto package = [&](const wchar_t* way, const wchar_t* kind) {
    // No words can name another folder: the files are looked for in this one.
    return L"msiexec /qn " + std::wstring(way) + L" \"" + ProgramPath(kind) +
           L"\\brindle.msi\" InstallFolder=C:\\elsewhere INSTALLFOLDER=C:\\elsewhere";
  };
  CheckEachCase({.folder = L"C:\\Program Files\\Brindle",
                 .install = package(L"/i", L"installers\\good"),
                 .installBadCertificate = package(L"/i", L"installers\\bad"),
                 .uninstall = package(L"/x", L"installers\\good"),
                 .readsItself = false});
}
