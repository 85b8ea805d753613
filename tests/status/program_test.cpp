#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <regex>
#include <sstream>

#include "lib/string/visible_text.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

// Keeps names in the order in which they were written.
using Json = nlohmann::ordered_json;

static std::wstring FromUtf8(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

static std::string Replaced(const std::string& text, const std::string& pattern,
                            const std::string& by) {
  return std::regex_replace(text, std::regex(pattern), by);
}

static const std::wstring kInfFolder = L"C:\\windows\\inf\\";

// On a machine where nothing is installed, a folder, the current one, with certificates, INF files
// and these programs:
//   sorrel.exe and sorrel_status.exe, with the simulator's libraries beside them
//   alone\sorrel_status.exe, with none
//   versioned\sorrel_status.exe, with a driver library that has a version
struct Machine {
  Machine() {
    const std::string inf =
        "[Version]\r\nSignature = \"$WINDOWS NT$\"\r\nProvider = %Maker%\r\n"
        "DriverVer = 01/01/2026,1.0.0.0\r\n[Strings]\r\nMaker = \"Tessalin rehearsal\"\r\n";
    folder.Write("Tessalin.inf", inf);
    folder.Write("unpublished.inf", Replaced(inf, "2026", "2027"));
    folder.Write("incomplete.inf", Replaced(inf, "Provider.*\r\n", ""));
    RemovePublished();
  }
  ~Machine() { RemovePublished(); }

  static void RemovePublished() {
    std::error_code ignored;
    for (const wchar_t* const file : {L"oem6.inf", L"oem8.inf", L"oem9.inf"}) {
      std::filesystem::remove(kInfFolder + file, ignored);
    }
  }

  CleanMachine clean;
  ProgramFolder folder{{L"sorrel_status.exe", L"sorrel_status.exe"},
                       {L"sorrel_status.exe", L"alone\\sorrel_status.exe"},
                       {L"sorrel_status.exe", L"versioned\\sorrel_status.exe"},
                       {L"sorrel.exe", L"versioned\\difxapi.dll"}};
};

static void StoreList(DWORD type, const std::wstring& list) {
  StoreUnits(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", type, list + L'\0');
}

// What a line of life.txt that begins with "* " does to the machine.
static const std::map<std::string, std::function<void()>> kChanges = {
    {"* Tessalin.inf is published as oem8.inf, incomplete.inf as oem9.inf",
     [] {
       std::filesystem::copy_file("Tessalin.inf", kInfFolder + L"oem8.inf");
       std::filesystem::copy_file("incomplete.inf", kInfFolder + L"oem9.inf");
     }},
    {"* oem6.inf is a folder, which cannot be read as a file",
     [] { std::filesystem::create_directory(kInfFolder + L"oem6.inf"); }},
    {"* the store CA is gone",
     [] { RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\SystemCertificates\\CA"); }},
    {"* the list is a number", [] { StoreList(REG_DWORD, L"1"); }},
    {"* the list has 1,024 characters", [] { StoreList(REG_SZ, std::wstring(1024, L'x')); }},
};

// The values below a key of the local machine, a line each. Not the keys: Wine makes empty ones for
// a store that is only read.
static std::wstring ValuesBelow(const std::wstring& path) {
  OwnedRegistryKey key;
  OpenRegistryKey(HKEY_LOCAL_MACHINE, path.c_str(), KEY_READ, key);
  std::wstring found;
  std::vector<wchar_t> name(0x4000);
  std::vector<BYTE> data(0x10000);
  for (DWORD i = 0, length = 0x4000, size = 0x10000;
       RegEnumValueW(key.get(), i, name.data(), &length, nullptr, nullptr, data.data(), &size) == 0;
       ++i, length = 0x4000, size = 0x10000) {
    found += path + L" " + name.data() + std::wstring(data.data(), data.data() + size) + L"\n";
  }
  for (DWORD i = 0; RegEnumKeyW(key.get(), i, name.data(), 0x4000) == ERROR_SUCCESS; ++i) {
    found += ValuesBelow(path + L"\\" + name.data());
  }
  return found;
}

// The values below the tool's key, those of all stores, and the names in the INF folder.
static std::wstring Snapshot() {
  std::wstring found = ValuesBelow(L"SYSTEM\\CurrentControlSet\\Services\\Tessalin") +
                       ValuesBelow(L"Software\\Microsoft\\SystemCertificates");
  for (const auto& file : std::filesystem::directory_iterator(kInfFolder)) {
    found += file.path().wstring() + L"\n";
  }
  return found;
}

// Checks that the JSON form says the same as the text form. Each rule, a pattern and what replaces
// it, makes an item of one more like its line of the other, until no name or brace is left.
static void CheckJson(const ChildResult& json, const ChildResult& text,
                      const std::vector<std::pair<std::string, std::string>>& rules) {
  static const std::map<DWORD, const char*> states = {
      {0, "present"}, {1, "absent"}, {3, "unknown"}};
  const Json report = Json::parse(json.output);
  CHECK(json.output == Replaced(report.dump(2) + "\n", "\n", "\r\n"));
  CHECK(json.exitCode == text.exitCode);
  CHECK(report == Json{{"schema", 1},
                       {"version", "1.0.0"},
                       {"state", states.at(text.exitCode)},
                       {"items", report["items"]}});
  std::string lines;
  for (const Json& item : report["items"]) {
    std::string line = item.dump();
    for (const auto& [pattern, words] : rules) {
      line = Replaced(line, pattern, words);
    }
    lines += ToVisibleUtf8(FromUtf8(line)) + "\r\n";
  }
  // Without the blanks that line up the columns.
  CHECK(lines == Replaced(text.output, "(\\w+) +(\\w+( package)?) +([^\r]*\r\n)", "$1 $2 $4"));
}

// What differs from run to run has a name.
static std::string Named(std::string output) {
  output = Replaced(output, "[0-9A-F]{40}", "THUMBPRINT");
  output = Replaced(output, "\\d{4}-[-0-9T:]{14}Z", "TIME");
  output = Replaced(output, "[A-Z]:[^;]*kelvo test[^;\\\\]*", "FOLDER");
  return Replaced(output, "(info     system)[^\r]+", "$1");
}

TEST_CASE("sorrel_status.exe reports what life.txt says, in both forms, and changes nothing") {
  const Machine machine;
  std::istringstream life(ReadBytes(ProgramPath(L"expected\\life.txt")));
  std::vector<std::pair<std::string, std::string>> rules;
  std::string seen;
  for (std::string line; std::getline(life, line);) {
    line.erase(std::min(line.find('\r'), line.size()));
    CAPTURE(line);
    if (line.starts_with("# ")) {
      seen += (seen.empty() ? "" : "\r\n") + line + "\r\n\r\n";
    } else if (line.starts_with("* ")) {
      kChanges.at(line)();
      seen += line + "\r\n\r\n";
    } else if (const std::size_t arrow = line.find(" =>"); arrow != std::string::npos) {
      rules.emplace_back(line.substr(0, arrow), line.substr(std::min(arrow + 4, line.length())));
      seen += line + "\r\n";
    } else if (line.starts_with("> sorrel.exe")) {
      ProgramFolder::Run(FromUtf8(line.substr(2)));
      seen += line + "\r\n\r\n";
    } else if (line.starts_with("> ")) {
      // With --json in the file that form is shown.
      const std::wstring command = FromUtf8(Replaced(line.substr(2), " --json$", ""));
      const std::wstring before = Snapshot();
      const ChildResult text = ProgramFolder::Run(command);
      const ChildResult json = ProgramFolder::Run(command + L" --json");
      CHECK(Snapshot() == before);
      CHECK_BOTH(text.errors == "", json.errors == "");
      CheckJson(json, text, rules);
      seen += line + "\r\n" + Named(line.ends_with(" --json") ? json.output : text.output) + "= " +
              std::to_string(text.exitCode) + "\r\n\r\n";
    }
  }
  CheckAgainstFile(seen, L"life.txt");
}

TEST_CASE("a wrong command line ends with 2 and the usage on standard error") {
  const Machine machine;
  const ChildResult run = ProgramFolder::Run(L"sorrel_status.exe --json --nothing");
  CHECK_BOTH(run.exitCode == 2, run.output == "");
  const ChildResult version = ProgramFolder::Run(L"sorrel_status.exe --version");
  CHECK_BOTH(version.exitCode == 0, version.output == "sorrel_status 1.0.0\r\n");
  const ChildResult help = ProgramFolder::Run(L"sorrel_status.exe --help");
  CHECK_BOTH(help.exitCode == 0, help.output.find("Usage:\r\n") != std::string::npos);
  CHECK(run.errors == "Option 'nothing' does not exist\r\n\r\n" + help.output);
  // Where nothing can be written.
  CHECK(RunChild(L"sorrel_status.exe --help", L"sorrel_status.exe", GENERIC_READ).exitCode == 3);
}
