#include <regex>
#include <sstream>

#include "lib/string/format_text.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

// Removes the list of applications, and the test certificates from the stores. Creates a folder and
// makes it the current folder. Puts certificate files and these programs into the folder:
//   sorrel.exe, with the simulator's two libraries
//   alone\sorrel.exe, without these libraries
//   swapped\sorrel.exe, with the libraries' names swapped: each lacks the expected functions
//   without_security.exe, a copy of sorrel.exe for which Wine loads no security.dll
//   without_crypt32.exe, a copy of sorrel.exe for which Wine loads no crypt32.dll
struct Rehearsal : ProgramFolder {
  Rehearsal()
      : ProgramFolder({{L"sorrel.exe", L"alone\\sorrel.exe"},
                       {L"sorrel.exe", L"swapped\\sorrel.exe"},
                       {L"simulator\\bthprops.cpl", L"swapped\\difxapi.dll"},
                       {L"simulator\\difxapi.dll", L"swapped\\bthprops.cpl"},
                       {L"sorrel.exe", L"without_security.exe"},
                       {L"sorrel.exe", L"without_crypt32.exe"}}) {
    for (const std::wstring library : {L"security", L"crypt32"}) {
      const std::wstring key =
          L"Software\\Wine\\AppDefaults\\without_" + library + L".exe\\DllOverrides";
      RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), library.c_str(), REG_SZ, L"", 2);
    }
    Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx");
    // One line break: from a file of 0 bytes, Wine 8 would import uninitialised stack data.
    Write("empty.cer", "\n");
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", L"journal");
  }

  // Runs a command. Each prefix "NAME=value " sets an environment variable for this command only.
  // Returns the output, the exit code, the list of applications, the certificates in the stores
  // "TrustedPublisher" and "CA", and the simulator's journal.
  static std::string Run(std::wstring line) {
    std::filesystem::remove("journal");
    std::vector<std::wstring> variables;
    const std::wregex variable(L"^(\\w+)=(\\S*) ");
    for (std::wsmatch found; std::regex_search(line, found, variable);
         line = found.suffix().str()) {
      variables.push_back(found.str(1));
      SetEnvironmentVariableW(variables.back().c_str(), found.str(2).c_str());
    }
    const ChildResult run = ProgramFolder::Run(line);
    for (const std::wstring& name : variables) {
      SetEnvironmentVariableW(name.c_str(), nullptr);
    }
    CHECK(run.errors.empty());
    const WString state =
        FormatText(L"= %08lX [%s] [%s] [%s]\r\n", run.exitCode, Applications().c_str(),
                   SubjectsInStore(L"TrustedPublisher").c_str(), SubjectsInStore(L"CA").c_str());
    return run.output + Ascii(state.c_str()) + ReadBytes("journal");
  }
};

TEST_CASE("sorrel.exe: lines, exit codes, calls and state match transcript.txt") {
  const Rehearsal machine;
  std::string bytes = ReadBytes(ProgramPath(L"expected\\transcript.txt"));
  std::erase(bytes, '\r');  // An editor may have written CRLF or LF.
  std::istringstream transcript(bytes);
  // The text and the name of each block. In transcript.txt, a block consists of a line "@NAME:",
  // the text and an empty line.
  std::vector<std::pair<std::string, std::string>> named;
  std::string seen;
  for (std::string line; std::getline(transcript, line);) {
    if (line.starts_with("# ")) {
      seen += line + "\r\n\r\n";
    } else if (line.starts_with("@") && line.ends_with(":")) {
      std::string text;
      for (std::string next; std::getline(transcript, next) && !next.empty();) {
        text += next + "\r\n";
      }
      REQUIRE_FALSE(text.empty());
      named.emplace_back(text, line.substr(0, line.length() - 1) + "\r\n");
      seen += line + "\r\n" + text + "\r\n";
    } else if (line.starts_with("> ")) {
      std::string outcome = Rehearsal::Run({line.begin() + 2, line.end()});
      // An "@" in the program's output could be mistaken for the name of a block.
      CHECK(outcome.find('@') == std::string::npos);
      for (const auto& [text, name] : named) {
        for (std::size_t at = 0; (at = outcome.find(text)) != std::string::npos;) {
          outcome.replace(at, text.length(), name);
        }
      }
      seen += line + "\r\n" + outcome + "\r\n";
    }
  }
  CheckAgainstFile(seen, L"transcript.txt");
}

TEST_CASE("install: writes all lines, even long ones, before a crash in difxapi.dll") {
  const Rehearsal machine;
  const std::wstring path(32'000, L'p');
  const std::wstring text(6'000, L'l');
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", (L"0,0," + text).c_str());
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", L"1");
  const ChildResult run =
      ProgramFolder::Run(L"sorrel.exe install Tessalin.inf " + path + L" none brindle");
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", nullptr);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", nullptr);
  CHECK(run.output.starts_with("ERR: ImportCertToTrustedPublishers '" + Ascii(path) + "' Error: "));
  CHECK(run.output.ends_with("\r\nINFO: 0 - 00000000 - " + Ascii(text) + "\r\n"));
  CHECK_BOTH(run.exitCode == ERROR_PROCESS_ABORTED, run.errors.empty());
}

TEST_CASE("register: adds to a list that it can read, and replaces a value that it cannot read") {
  const Rehearsal machine;
  struct Row {
    DWORD type;
    std::wstring stored, list;
  };
  const std::wstring longest = std::wstring(1015, L'x') + L";brindle";
  for (const auto& [type, stored, list] :
       {Row{REG_SZ, longest, longest + L";kite"}, Row{REG_SZ, L"x" + longest, L"kite"},
        Row{REG_SZ, L";;a;;b;", L"a;;b;;kite"}, Row{REG_EXPAND_SZ, L"a;%LATER%", L"a;b;kite"},
        Row{REG_DWORD, L"1", L"kite"},
        Row{REG_SZ, L"\u0100ofie \u00FF\U0001F600", L"\u0100ofie \u00FF\U0001F600;kite"}}) {
    StoreUnits(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", type, stored + L'\0');
    Rehearsal::Run(L"LATER=b sorrel.exe register kite");
    CHECK(Applications() == list);
  }
  // sorrel.exe writes each UTF-16 unit of a name as one byte, or as "?" if the unit does not fit.
  CHECK(Rehearsal::Run(L"sorrel.exe unregister KITE")
            .starts_with("OK: Dependant applications exist: ?ofie \xFF??\r\n"));
}
