#include <sstream>

#include "lib/string/format_text.h"
#include "tests/support/applications.h"
#include "tests/support/testing.h"

// sorrel.exe with the simulator's libraries and certificates in a folder of its own, the current
// one, on a machine with no dependent application recorded and both certificate stores empty.
struct Rehearsal {
  Rehearsal() {
    for (const wchar_t* const file :
         {L"sorrel.exe", L"simulator\\bthprops.cpl", L"simulator\\difxapi.dll",
          L"certificates\\binary.cer", L"certificates\\base64.cer", L"certificates\\bundle.p7b"}) {
      const std::filesystem::path source = ProgramPath(file);
      std::filesystem::copy_file(source, folder / source.filename());
    }
    std::filesystem::current_path(folder / "");
    SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", L"journal");
  }
  ~Rehearsal() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs a command line of cmd.exe and tells all that came of it: what it wrote, its exit code, the
  // list of applications and the certificates in each store, then the journal.
  static std::string Run(const std::wstring& command) {
    std::filesystem::remove("journal");
    // 9009 is what cmd.exe says when Wine fails to start a program, as under load it does.
    ChildResult run{9009, "", ""};
    for (int tries = 0; run.exitCode == 9009 && tries < 5; ++tries) {
      run = RunChild(L"cmd /c " + command);
    }
    CHECK(run.errors.empty());
    const WString state =
        FormatText(L"= %08lX [%s] [%s] [%s]\r\n", run.exitCode, Applications().c_str(),
                   SubjectsInStore(L"TrustedPublisher").c_str(), SubjectsInStore(L"CA").c_str());
    return run.output + Ascii(state.c_str()) + ReadBytes("journal");
  }

  CleanMachine machine;
  ScratchFolder folder;
};

TEST_CASE("each command in transcript.txt does what stands under it") {
  const Rehearsal machine;
  machine.folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx");
  // From no bytes at all Wine 8 makes whatever lies on its stack.
  machine.folder.Write("empty.cer", "\n");
  std::istringstream transcript(ReadBytes(ProgramPath(L"expected\\transcript.txt")));
  std::string seen;
  for (std::string line; std::getline(transcript, line);) {
    // As an editor of whatever system ends a line.
    line.erase(std::min(line.find('\r'), line.size()));
    if (line.starts_with("# ")) {
      seen += line + "\r\n\r\n";
    } else if (line.starts_with("> ")) {
      seen += line + "\r\n" + Rehearsal::Run({line.begin() + 2, line.end()}) + "\r\n";
    }
  }
  CheckAgainstFile(seen, L"transcript.txt");
}

TEST_CASE("a process that ends too early loses no line, of whatever length") {
  const Rehearsal machine;
  const std::wstring path(32'000, L'p');
  const std::wstring text(6'000, L'l');
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", (L"0,0," + text).c_str());
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", L"1");
  const std::wstring program = machine.folder / "sorrel.exe";
  const ChildResult run =
      RunChild(L"\"" + program + L"\" install Tessalin.inf " + path + L" none brindle");
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", nullptr);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", nullptr);
  CHECK(run.output.starts_with("ERR: ImportCertToTrustedPublishers '" + Ascii(path) + "' Error: "));
  CHECK(run.output.ends_with("\r\nINFO: 0 - 00000000 - " + Ascii(text) + "\r\n"));
  CHECK_BOTH(run.exitCode == ERROR_PROCESS_ABORTED, run.errors.empty());
}

TEST_CASE("names outside ASCII are kept, and shown as far as a byte can") {
  const Rehearsal machine;
  StoreUnits(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", REG_SZ,
             std::wstring(L"\u0100ofie \u00FF\U0001F600") + L'\0');
  Rehearsal::Run(L"sorrel.exe register kite");
  CHECK(Applications() == L"\u0100ofie \u00FF\U0001F600;kite");
  CHECK(Rehearsal::Run(L"sorrel.exe unregister KITE")
            .starts_with("OK: Dependant applications exist: ?ofie \xFF??\r\n"));
}
