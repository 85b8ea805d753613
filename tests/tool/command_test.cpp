#include <sstream>

#include "lib/string/string_tokenizer.h"
#include "tests/tool/rehearsal.h"

TEST_CASE("words that match no form give the usage text, and nothing is done") {
  const Rehearsal machine;
  const std::string usage = Rehearsal::Run(L"sorrel.exe");
  CHECK(usage.starts_with("invalid arguments\r\n"));
  const WString nearForms =
      L"install|install a b c|install a b c d e|Install a b c d|\"install \" a b c d|"
      L"installx a b c d|uninstall|uninstall a|uninstall a b c|UNINSTALL a b|REGISTER|Register app|"
      L"register a b|unregister a b|registe|unregisterx|\"\"|a b|a b c|a b c d e";
  for (StringTokenizer words(nearForms, L"|", true); words.HasMoreTokens();) {
    CHECK(Rehearsal::Run((WString(L"sorrel.exe ") + words.NextToken()).c_str()) == usage);
  }
}

TEST_CASE("each command in transcript.txt does what stands under it") {
  const Rehearsal machine;
  machine.folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx");
  // Of no bytes at all Wine 8 makes what lies on its stack by chance.
  machine.folder.Write("empty.cer", "\n");
  std::istringstream transcript(ReadBytes(ProgramPath(L"expected\\transcript.txt")));
  std::string seen;
  for (std::string line; std::getline(transcript, line);) {
    if (line.starts_with("# ")) {
      seen += line + "\n\r\n";
    } else if (line.starts_with("> ")) {
      seen += line + "\n" + Rehearsal::Run({line.begin() + 2, line.end() - 1}) + "\r\n";
    }
  }
  CheckAgainstFile(seen, L"transcript.txt");
}

TEST_CASE("a process that ends too early loses no line, of whatever length") {
  const Rehearsal machine;
  const std::string path(32'000, 'p');
  const std::string text(6'000, 'l');
  SetEnvironmentVariableA("SORREL_SIMULATOR_DRIVER_LOG", ("0,0," + text).c_str());
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", L"1");
  const ChildResult run = RunChild(
      (machine.folder / ("sorrel.exe install Tessalin.inf " + path + " none brindle")).wstring());
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_LOG", nullptr);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_DRIVER_CRASH", nullptr);
  CHECK(run.output.starts_with("ERR: ImportCertToTrustedPublishers '" + path + "' Error: "));
  CHECK(run.output.ends_with("\r\nINFO: 0 - 00000000 - " + text + "\r\n"));
  CHECK((run.exitCode == ERROR_PROCESS_ABORTED && run.errors.empty()));
}
