#include "tests/tool/rehearsal.h"

using Catch::Contains;

const std::wstring kBinary = ProgramPath(L"certificates\\binary.cer");

static std::string Install(const Rehearsal& machine, const std::wstring& publisher,
                           const std::wstring& intermediate,
                           const Rehearsal::Settings& settings = {}) {
  return machine.Run(
      L"install C:\\Tessalin.inf \"" + publisher + L"\" \"" + intermediate + L"\" brindle",
      settings);
}

TEST_CASE("an install trusts, installs, records and registers, in this order") {
  const Rehearsal machine;
  const std::wstring base64 = ProgramPath(L"certificates\\base64.cer");
  CHECK(Install(machine, kBinary, base64,
                {{L"DRIVER_LOG", L"1,0,Copying|3,5|2,0xE0000242,\u00E9\u017D"}}) ==
        "OK: ImportCertToTrustedPublishers '" + Ascii(kBinary) + "' Import OK\r\n" +
            "OK: ImportCertToIntermediateCA '" + Ascii(base64) + "' Import OK\r\n" +
            "INFO: 1 - 00000000 - Copying\r\nINFO: 3 - 00000005 - \r\n"
            "INFO: 2 - E0000242 - \xE9?\r\nINFO: Driver Install Success\r\n" +
            kOk + "= 00000000 [brindle]\r\n" +
            "difxapi.dll loaded\r\nSetDifxLogCallbackW callback=given\r\n"
            "DriverPackageInstallW inf=\"C:\\Tessalin.inf\" flags=2 installer=none reboot=0\r\n"
            "SetDifxLogCallbackW callback=none\r\ndifxapi.dll freed\r\n" +
            kOn);
  CHECK(SubjectsInStore(L"TrustedPublisher") == kTestPublisher);
  CHECK(SubjectsInStore(L"CA") == kTestPublisher);
}

TEST_CASE("each outcome of the driver installation has its line, the restart its own") {
  const std::pair<const wchar_t*, std::string> rows[] = {
      {L"0", "INFO: Driver Install Success"},
      {L"0xE000020B", "INFO: Driver preinstalled OK"},
      {L"0xE0000301", "INFO: Driver preinstalled OK"},
      {L"259", "INFO: Driver is installed - No Update needed"},
      {L"0xE0000242", "ERR: The drivers publisher is not trusted"},
      {L"5", "ERR: DriverPackageInstall Error: 00000005 - Access denied.\r\r\n"},
      {L"0xE0000243", "ERR: DriverPackageInstall Error: E0000243 - "}};
  const Rehearsal machine;
  for (const auto& [result, line] : rows) {
    for (const std::wstring reboot : {L"0", L"1"}) {
      CHECK_THAT(Install(machine, L"none", L"none",
                         {{L"DRIVER_RESULT", result}, {L"DRIVER_REBOOT", reboot}}),
                 Contains("\r\n" + line + "\r\n" + (reboot == L"1" ? "Reboot required\r\n" : "") +
                          kOk + "= 00000000 [brindle]\r\n"));
    }
  }
  const std::string error = "ERR: DriverPackageInstall Error: ";
  CopyFileW((machine.folder / "bthprops.cpl").c_str(), (machine.folder / "difxapi.dll").c_str(),
            FALSE);
  CHECK_THAT(Install(machine, L"none", L"none"),
             Contains(error + "0000007F - Procedure not found.\r\r\n\r\n" + kOk));
  std::filesystem::remove(machine.folder / "difxapi.dll");
  CHECK_THAT(Install(machine, L"none", L"none"),
             Contains(error + "0000007E - Module not found.\r\r\n\r\n" + kOk));
}

TEST_CASE("what a certificate file cannot give is told, and the other steps run") {
  const Rehearsal machine;
  const std::string notFound = "' Error: 80092009 - ";
  const std::pair<std::wstring, std::string> rows[] = {
      {ProgramPath(L"certificates\\bundle.p7b"), "' Import OK\r\n"},
      {machine.folder / "missing.cer", notFound},
      {machine.folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx"), notFound},
      // Of no bytes at all Wine 8 makes what lies on its stack by chance.
      {machine.folder.Write("empty.cer", "\n"), notFound}};
  for (const auto& [file, line] : rows) {
    CHECK_THAT(Install(machine, file, file),
               Contains("ImportCertToTrustedPublishers '" + Ascii(file) + line) &&
                   Contains("ImportCertToIntermediateCA '" + Ascii(file) + line) &&
                   Contains("INFO: Driver Install Success\r\n" + kOk));
  }
  CHECK(SubjectsInStore(L"TrustedPublisher") + SubjectsInStore(L"CA") == L"");
}

TEST_CASE("a process that ends too early loses no line and writes none") {
  const Rehearsal machine;
  const std::wstring path(32'000, L'p');
  const std::wstring text(6'000, L'l');
  CHECK_THAT(
      Install(machine, path, L"none", {{L"DRIVER_LOG", L"0,0," + text}, {L"DRIVER_CRASH", L"1"}}),
      Contains("ERR: ImportCertToTrustedPublishers '" + Ascii(path) + "' Error: ") &&
          Contains("\r\nINFO: 0 - 00000000 - " + Ascii(text) + "\r\n= 0000042B [none]\r\n"));
  // How Wine is told that security.dll is missing; Windows has it always.
  const wchar_t* const missing = L"Software\\Wine\\AppDefaults\\sorrel.exe\\DllOverrides";
  RegSetKeyValueW(HKEY_CURRENT_USER, missing, L"security", REG_SZ, L"", sizeof(wchar_t));
  CHECK(Install(machine, kBinary, kBinary) == "= 00000003 [none]\r\n");
  RegDeleteKeyValueW(HKEY_CURRENT_USER, missing, L"security");
}
