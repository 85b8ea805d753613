#include "tests/support/catch.h"
#include "tests/support/certificate_store.h"
#include "tests/tool/rehearsal.h"

namespace kelvo::test {

namespace {

const std::string kServiceOk = "OK: BluetoothSetLocalServiceInfo\r\n";
const std::string kPublisherStep = "ImportCertToTrustedPublishers '";
const std::string kIntermediateStep = "ImportCertToIntermediateCA '";

std::string Ascii(const std::wstring& text) { return {text.begin(), text.end()}; }

std::wstring InstallWords(const std::wstring& publisher, const std::wstring& intermediate) {
  return L"install C:\\Tessalin.inf \"" + publisher + L"\" \"" + intermediate + L"\" brindle";
}

}  // namespace

TEST_CASE("an install trusts, installs, records and registers, in this order") {
  Rehearsal machine;
  machine.Set(L"DRIVER_LOG", L"1,0,Copying|3,5|2,0xE0000242,\u00E9\u017D");
  const std::wstring binary = CertificateFile(L"binary.cer");
  const std::wstring base64 = CertificateFile(L"base64.cer");
  const ChildResult run = machine.Run(InstallWords(binary, base64));
  CHECK(run.exitCode == 0);
  CHECK(run.output == "OK: " + kPublisherStep + Ascii(binary) + "' Import OK\r\n" +
                          "OK: " + kIntermediateStep + Ascii(base64) + "' Import OK\r\n" +
                          "INFO: 1 - 00000000 - Copying\r\n"
                          "INFO: 3 - 00000005 - \r\n"
                          "INFO: 2 - E0000242 - \xE9?\r\n"
                          "INFO: Driver Install Success\r\n" +
                          kServiceOk);
  CHECK(run.errors.empty());
  CHECK(SubjectsInStore(L"TrustedPublisher") == kCertificateSubject);
  CHECK(SubjectsInStore(L"CA") == kCertificateSubject);
  CHECK(Applications() == L"brindle");
  CHECK(machine.Journal(true) ==
        "difxapi.dll loaded\n"
        "SetDifxLogCallbackW callback=given\n"
        "DriverPackageInstallW inf=\"C:\\Tessalin.inf\" flags=2 installer=none reboot=0\n"
        "SetDifxLogCallbackW callback=none\n"
        "difxapi.dll freed\n"
        "bthprops.cpl loaded\n"
        "BluetoothSetLocalServiceInfo radio=none class={3ABB9028-BEAE-4BF1-ACD7-5CD7D5E4E0CA} "
        "instance=0 enabled=1 address=000000000000 name=\"Tessalin\" device=\"\"\n"
        "bthprops.cpl freed\n");
}

TEST_CASE("each outcome of the driver installation has its line, the restart its own") {
  struct Row {
    const wchar_t* result;
    std::string line;
  };
  const Row rows[] = {
      {L"0", "INFO: Driver Install Success\r\n"},
      {L"0xE000020B", "INFO: Driver preinstalled OK\r\n"},
      {L"0xE0000301", "INFO: Driver preinstalled OK\r\n"},
      {L"259", "INFO: Driver is installed - No Update needed\r\n"},
      {L"0xE0000242", "ERR: The drivers publisher is not trusted\r\n"},
      {L"5", "ERR: DriverPackageInstall Error: 00000005 - Access denied.\r\r\n\r\n"},
      {L"0xE0000243", "ERR: DriverPackageInstall Error: E0000243 - \r\n"},
  };
  Rehearsal machine;
  for (const Row& row : rows) {
    for (const bool restart : {false, true}) {
      machine.Set(L"DRIVER_RESULT", row.result);
      machine.Set(L"DRIVER_REBOOT", restart ? L"1" : L"0");
      const ChildResult run = machine.Run(InstallWords(L"none", L"none"));
      CAPTURE(row.result, restart);
      CHECK(run.exitCode == 0);
      CHECK(run.output.ends_with("\r\n" + row.line + (restart ? "Reboot required\r\n" : "") +
                                 kServiceOk));
    }
  }
}

TEST_CASE("what a certificate file cannot give is told, and the other steps run") {
  Rehearsal machine;
  const ScratchFolder& folder = machine.Folder();
  struct Row {
    std::wstring file;
    bool accepted;
  };
  const Row rows[] = {
      {CertificateFile(L"bundle.p7b"), true},
      {(folder.Path() / "missing.cer").wstring(), false},
      {folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nnonsense").wstring(), false},
      {folder.Write("empty.cer", "\n").wstring(), false},
  };
  for (const Row& row : rows) {
    const ChildResult run = machine.Run(InstallWords(row.file, row.file));
    CAPTURE(row.file);
    const std::string path = Ascii(row.file);
    const std::string prefix = row.accepted ? "OK: " : "ERR: ";
    const std::string rest = row.accepted ? "' Import OK\r\n" : "' Error: 80092009 - ";
    const std::size_t first = run.output.find(prefix + kPublisherStep + path + rest);
    const std::size_t second = run.output.find(prefix + kIntermediateStep + path + rest);
    CHECK(first == 0);
    CHECK((second != std::string::npos && second > first));
    CHECK(run.output.ends_with("INFO: Driver Install Success\r\n" + kServiceOk));
    CHECK(SubjectsInStore(L"TrustedPublisher").empty());
    CHECK(SubjectsInStore(L"CA").empty());
  }
  CHECK(Applications() == L"brindle");
}

TEST_CASE(
    "a machine without the driver interface, or with half of one, still gets the other steps") {
  Rehearsal machine;
  machine.Exchange(L"difxapi.dll", L"bthprops.cpl");
  CHECK(machine.Run(InstallWords(L"none", L"none"))
            .output.ends_with("ERR: DriverPackageInstall Error: 0000007F - Procedure not "
                              "found.\r\r\n\r\n" +
                              kServiceOk));
  machine.Remove(L"difxapi.dll");
  CHECK(machine.Run(InstallWords(L"none", L"none"))
            .output.ends_with("ERR: DriverPackageInstall Error: 0000007E - Module not "
                              "found.\r\r\n\r\n" +
                              kServiceOk));
}

TEST_CASE("without security.dll the process ends at once and without a word") {
  Rehearsal machine;
  // How Wine is told that a library is missing; Windows has it always.
  constexpr const wchar_t* kMissing = L"Software\\Wine\\AppDefaults\\sorrel.exe\\DllOverrides";
  RegSetKeyValueW(HKEY_CURRENT_USER, kMissing, L"security", REG_SZ, L"", sizeof(wchar_t));
  const std::wstring file = CertificateFile(L"binary.cer");
  const ChildResult run = machine.Run(InstallWords(file, file));
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kMissing, L"security");
  CHECK(run.exitCode == 3);
  CHECK(run.output.empty());
  CHECK(run.errors.empty());
  CHECK(machine.Journal(true).empty());
  CHECK_FALSE(Applications().has_value());
}

TEST_CASE("lines are out before the next step and of any length") {
  Rehearsal machine;
  const std::wstring text(6'000, L'l');
  machine.Set(L"DRIVER_LOG", L"0,0," + text);
  machine.Set(L"DRIVER_CRASH", L"1");
  const std::wstring path(32'000, L'p');
  const std::string output = machine.Run(InstallWords(path, L"none")).output;
  CHECK(output.starts_with("ERR: " + kPublisherStep + Ascii(path) + "' Error: "));
  CHECK(output.ends_with("INFO: 0 - 00000000 - " + Ascii(text) + "\r\n"));
}

}  // namespace kelvo::test
