#include <windows.h>

#include <wincrypt.h>

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "lib/string/visible_text.h"
#include "status/certificate_status.h"
#include "status/report.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

static std::wstring FromUtf8(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

// A ProgramFolder that also has sorrel_status.exe, INF files and copies of two certificates. Its
// subfolder "versioned" has a second sorrel_status.exe and a difxapi.dll. That DLL is a copy of
// sorrel.exe, which has a version resource.
struct Machine : ProgramFolder {
  Machine()
      : ProgramFolder({{L"certificates\\binary.cer", L"trusted.cer"},
                       {L"certificates\\base64.cer", L"trusted_i.cer"},
                       {L"sorrel_status.exe", L"sorrel_status.exe"},
                       {L"sorrel_status.exe", L"versioned\\sorrel_status.exe"},
                       {L"sorrel.exe", L"versioned\\difxapi.dll"}}) {
    const std::string inf =
        "[Version]\r\nSignature = \"$WINDOWS NT$\"\r\nProvider = %Maker%\r\n"
        "DriverVer = 01/01/2026,1.0.0.0\r\n[Strings]\r\nMaker = \"Tessalin rehearsal\"\r\n";
    Write("Tessalin.inf", inf);
    Write("unpublished.inf", Replaced(inf, "2026", "2027"));
    Write("incomplete.inf", Replaced(inf, "Provider.*\r\n", ""));
    Write("utf16.inf", Replaced(inf, "[^]", std::string("$&\0", 3)));
    Write("large.inf", inf);
    std::filesystem::resize_file("large.inf", 0x400001);
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", L"journal");
    Unpublish();
  }
  ~Machine() { Unpublish(); }

  static void Unpublish() {
    locked.reset();
    for (const wchar_t* const file : {L"oem6.inf", L"oem7.inf", L"oem8.inf", L"oem9.inf"}) {
      std::error_code ignored;
      std::filesystem::remove(kInfFolder + file, ignored);
    }
  }

  // Publishes a file as oem6.inf, and locks oem6.inf so that no program can read it.
  static void PublishLocked(const wchar_t* file) {
    locked.reset();
    const std::wstring published = kInfFolder + L"oem6.inf";
    CopyFileW(file, published.c_str(), FALSE);
    locked.reset(
        CreateFileW(published.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  }
  static inline OwnedFile locked;
};

// Maps a line of lifecycle.txt to the change that the test makes to the machine at that line.
static const std::map<std::string, std::function<void()>> kChanges = {
    {"* Tessalin.inf is published as oem8.inf, incomplete.inf as oem9.inf; oem7.inf is a folder",
     [] {
       std::filesystem::copy_file("Tessalin.inf", kInfFolder + L"oem8.inf");
       std::filesystem::copy_file("incomplete.inf", kInfFolder + L"oem9.inf");
       std::filesystem::create_directory(kInfFolder + L"oem7.inf");
     }},
    {"* oem6.inf cannot be read; its size differs from unpublished.inf's",
     [] { Machine::PublishLocked(L"binary.cer"); }},
    {"* oem6.inf cannot be read; its size equals unpublished.inf's",
     [] { Machine::PublishLocked(L"unpublished.inf"); }},
    {"* the store CA is deleted",
     [] { RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\SystemCertificates\\CA"); }},
};

// Returns the text of docs/administrators.md, which shows the usage text and a JSON report.
static std::string Page() { return ReadBytes(ProgramPath(L"expected\\administrators.md")); }
static std::string ShownOnPage(const std::string& kind) {
  const std::string page = Page();
  const std::size_t from = page.find("```" + kind + "\n") + kind.length() + 4;
  return Replaced(page.substr(from, page.find("```", from) - from), "\n", "\r\n");
}

// Checks that the JSON report is ASCII. For each item in the JSON report, checks that the text
// report contains its strings and numbers, and that docs/administrators.md lists its keys.
static void CheckJson(const ChildResult& json, const ChildResult& text) {
  using Json = nlohmann::ordered_json;
  const Json report = Json::parse(json.output);
  CHECK(json.output == Replaced(report.dump(2, ' ', true) + "\n", "\n", "\r\n"));
  CHECK(json.exitCode == text.exitCode);
  CHECK(report["state"] == std::array{"present", "absent", "", "unknown"}[text.exitCode]);
  std::istringstream lines(text.output);
  std::string line;
  for (const auto& item : report["items"]) {
    std::getline(lines, line);
    for (const auto& [key, value] : item.items()) {
      CAPTURE(key);
      CHECK(Page().find("`" + key + "`") != std::string::npos);
      const std::string shown = value.is_number() ? value.dump() + " certificate"
                                : value.is_string()
                                    ? ToVisibleUtf8(FromUtf8(value.get<std::string>()))
                                    : "";
      // The text report may express the values of "item" and "list" in other words.
      CHECK((key == "item" || key == "list" || line.find(shown) != std::string::npos));
    }
  }
}

TEST_CASE(
    "sorrel_status.exe: text reports match lifecycle.txt and the JSON; loads no simulator DLL") {
  const Machine machine;
  std::istringstream lifecycle(ReadBytes(ProgramPath(L"expected\\lifecycle.txt")));
  std::string seen;
  for (std::string line; std::getline(lifecycle, line);) {
    line.erase(std::min(line.find('\r'), line.size()));
    CAPTURE(line);
    if (line.starts_with("* ")) {
      kChanges.at(line)();
      seen += line + "\r\n\r\n";
    } else if (line.starts_with("> sorrel.exe")) {
      ProgramFolder::Run(FromUtf8(line.substr(2)));
      seen += line + "\r\n\r\n";
    } else if (line.starts_with("> ")) {
      // A command in lifecycle.txt ends with --json if administrators.md shows its JSON report.
      const std::wstring command = FromUtf8(Replaced(line.substr(2), " --json$", ""));
      std::filesystem::remove("journal");
      const ChildResult text = ProgramFolder::Run(command);
      const ChildResult json = ProgramFolder::Run(command + L" --json");
      CHECK(ReadBytes("journal") == "");
      CHECK_BOTH(text.errors == "", json.errors == "");
      CheckJson(json, text);
      if (line.ends_with(" --json")) {
        CHECK(Named(json.output) == Named(ShownOnPage("json")));
      }
      seen +=
          line + "\r\n" + Named(text.output) + "= " + std::to_string(text.exitCode) + "\r\n\r\n";
    }
  }
  CheckAgainstFile(seen, L"lifecycle.txt");
}

TEST_CASE(
    "sorrel_status.exe: for a wrong command line, writes the usage to standard error, returns 2") {
  const Machine machine;
  const ChildResult run = ProgramFolder::Run(L"sorrel_status.exe --json --nothing");
  CHECK_BOTH(run.exitCode == 2, run.output == "");
  const ChildResult version = ProgramFolder::Run(L"sorrel_status.exe --version");
  CHECK_BOTH(version.exitCode == 0, version.output == "sorrel_status 1.0.0\r\n");
  const ChildResult help = ProgramFolder::Run(L"sorrel_status.exe --help");
  CHECK_BOTH(help.exitCode == 0, help.output == ShownOnPage("text"));
  CHECK(run.errors == "Option 'nothing' does not exist\r\n\r\n" + help.output);
}

TEST_CASE("sorrel_status.exe: reports a certificate as expired only after its last valid moment") {
  const Machine machine;
  constexpr DWORD kLast = 0xA9CF5280;
  REPLACE(CryptQueryObject, [](auto original, auto... given) {
    const BOOL isRead = original(given...);
    const void* const context = *std::get<sizeof...(given) - 1>(std::tuple(given...));
    static_cast<PCCERT_CONTEXT>(context)->pCertInfo->NotAfter = {kLast, 0x1CF3841};
    return isRead;
  });
  for (const auto& [now, end] : {std::pair(kLast - 1, ""), {kLast, ""}, {kLast + 1, "; expired"}}) {
    REPLACE(GetSystemTimeAsFileTime, [=](auto, FILETIME* time) { *time = {now, 0x1CF3841}; });
    const std::string report = TextReport({QueryCertificate("publisher", L"binary.cer", L"CA")});
    CHECK(report.substr(report.find("valid")) ==
          std::string("valid until 2014-03-05T07:08:09Z") + end + "\n");
  }
}
