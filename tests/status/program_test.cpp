#include <nlohmann/json.hpp>

#include <regex>
#include <sstream>

#include "tests/support/applications.h"
#include "tests/support/testing.h"

// Both programs with the simulator's libraries, certificates and INF files in a folder of their
// own, the current one, on a machine where nothing is installed.
struct Machine {
  Machine() {
    for (const wchar_t* const file :
         {L"sorrel.exe", L"sorrel_status.exe", L"simulator\\bthprops.cpl",
          L"simulator\\difxapi.dll", L"certificates\\binary.cer", L"certificates\\base64.cer",
          L"certificates\\bundle.p7b"}) {
      const std::filesystem::path source = ProgramPath(file);
      std::filesystem::copy_file(source, folder / source.filename());
    }
    const std::string inf =
        "[Version]\r\nSignature = \"$WINDOWS NT$\"\r\nProvider = %Maker%\r\n"
        "DriverVer = 01/01/2026,1.0.0.0\r\n[Strings]\r\nMaker = \"Tessalin rehearsal\"\r\n";
    folder.Write("Tessalin.inf", inf);
    std::filesystem::create_directory(folder / "other");
    folder.Write("other/Tessalin.inf", std::regex_replace(inf, std::regex("2026"), "2027"));
    std::filesystem::current_path(folder / "");
  }
  ~Machine() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs a command line of cmd.exe; what differs from run to run has a name in what it wrote.
  ChildResult Run(const std::wstring& command) const {
    // 9009 is what cmd.exe says when Wine fails to start a program, as under load it does.
    ChildResult run{9009, "", ""};
    for (int tries = 0; run.exitCode == 9009 && tries < 5; ++tries) {
      run = RunChild(L"cmd /c " + command);
    }
    run.output = std::regex_replace(run.output, std::regex("[0-9A-F]{40}"), "THUMBPRINT");
    run.output = std::regex_replace(run.output, std::regex("\\d{4}-[-0-9T:]{14}Z"), "TIME");
    run.output =
        std::regex_replace(run.output, std::regex("[A-Z]:[^;]*kelvo test[^;\\\\]*"), "FOLDER");
    run.output = std::regex_replace(
        run.output, std::regex(R"((info     system|"name": "(?=Wind|Micr|\())[^"\r]+)"), "$1");
    // Wine 10 elevates nobody.
    run.output =
        std::regex_replace(run.output, std::regex("elevated\": false"), "elevated\": true");
    return run;
  }

  CleanMachine clean;
  ScratchFolder folder;
};

// What lies below the tool's key, the values of all stores, and the files of the INF folder. Wine
// makes empty keys for a store that is only read.
static std::string Snapshot(const Machine& machine) {
  const std::string everything =
      machine
          .Run(
              L"reg query HKLM\\SYSTEM\\CurrentControlSet\\Services\\Tessalin /s 2>nul"
              L" & reg query HKLM\\Software\\Microsoft\\SystemCertificates /s 2>nul"
              L" & dir /b C:\\windows\\inf")
          .output;
  return std::regex_replace(everything, std::regex("HKEY_[^\r]*SystemCertificates[^\r]*|\r\n"), "");
}

// The states that --json tells of the same question, a line each as the other form writes them.
static std::string StatesFromJson(const ChildResult& run) {
  std::string states;
  const auto report = nlohmann::json::parse(run.output);
  CHECK(report["schema"] == 1);
  CHECK((report["state"] == "unknown") == (run.exitCode == 3));
  for (const auto& item : report["items"]) {
    states += item["state"].get<std::string>() + "\n";
  }
  return states;
}

TEST_CASE("each command in life.txt finds what stands on the machine, and changes nothing") {
  const Machine machine;
  std::istringstream life(ReadBytes(ProgramPath(L"expected\\life.txt")));
  std::string seen;
  for (std::string line; std::getline(life, line);) {
    if (!line.starts_with("> ")) {
      continue;
    }
    line.erase(line.find_last_not_of('\r') + 1);
    const std::wstring command =
        std::filesystem::path(std::u8string(line.begin() + 2, line.end())).wstring();
    if (command.find(L"status") == std::wstring::npos) {
      machine.Run(command);
      seen += line + "\r\n\r\n";
      continue;
    }
    const std::string before = Snapshot(machine);
    const ChildResult run = machine.Run(command);
    const ChildResult json = machine.Run(command + L" --json");
    CAPTURE(line);
    CHECK(Snapshot(machine) == before);
    CHECK_BOTH(run.errors == "", json.exitCode == run.exitCode);
    CHECK(StatesFromJson(json) == std::regex_replace(run.output, std::regex(" .*\r\n"), "\n"));
    seen +=
        line + "\r\n" + run.output + json.output + "= " + std::to_string(run.exitCode) + "\r\n\r\n";
  }
  CheckAgainstFile(seen, L"life.txt");
}

TEST_CASE("a wrong command line ends with 2 and the usage on standard error") {
  const Machine machine;
  const ChildResult run = machine.Run(L"sorrel_status.exe --json --nothing");
  CHECK_BOTH(run.exitCode == 2, run.output == "");
  const ChildResult told = machine.Run(L"sorrel_status.exe --version&sorrel_status.exe --help");
  CHECK(told.output.starts_with("sorrel_status 1.0.0\r\n"));
  CHECK(told.output.find("Usage:\r\n") != std::string::npos);
  CHECK(run.errors == "Option 'nothing' does not exist\r\n\r\n" + told.output.substr(21));
  CHECK(told.exitCode == 0);
}
