#include "tests/support/catch.h"
#include "tests/support/certificate_store.h"
#include "tests/tool/rehearsal.h"

namespace kelvo::test {

namespace {

const std::string kServiceOk = "OK: BluetoothSetLocalServiceInfo\r\n";
const std::wstring kBinary = CertificateFile(L"binary.cer");

std::string Ascii(const std::wstring& text) { return {text.begin(), text.end()}; }

std::string Install(Rehearsal& machine, const std::wstring& publisher,
                    const std::wstring& intermediate, DWORD exitCode = 0) {
  const ChildResult run = machine.Run(L"install C:\\Tessalin.inf \"" + publisher + L"\" \"" +
                                      intermediate + L"\" brindle");
  CHECK(run.exitCode == exitCode);
  CHECK(run.errors.empty());
  return run.output;
}

std::string Imported(const std::string& step, const std::wstring& file) {
  return "OK: ImportCertTo" + step + " '" + Ascii(file) + "' Import OK\r\n";
}

std::string NotImported(const std::string& step, const std::wstring& file) {
  return "ERR: ImportCertTo" + step + " '" + Ascii(file) + "' Error: 80092009 - ";
}

}  // namespace

TEST_CASE("an install trusts, installs, records and registers, in this order") {
  Rehearsal machine;
  machine.Set(L"DRIVER_LOG", L"1,0,Copying|3,5|2,0xE0000242,\u00E9\u017D");
  const std::wstring base64 = CertificateFile(L"base64.cer");
  CHECK(Install(machine, kBinary, base64) ==
        Imported("TrustedPublishers", kBinary) + Imported("IntermediateCA", base64) +
            "INFO: 1 - 00000000 - Copying\r\nINFO: 3 - 00000005 - \r\n"
            "INFO: 2 - E0000242 - \xE9?\r\nINFO: Driver Install Success\r\n" +
            kServiceOk);
  CHECK(SubjectsInStore(L"TrustedPublisher") == kCertificateSubject);
  CHECK(SubjectsInStore(L"CA") == kCertificateSubject);
  CHECK(Applications() == L"brindle");
  CHECK(machine.Journal(true) ==
        "difxapi.dll loaded\nSetDifxLogCallbackW callback=given\n"
        "DriverPackageInstallW inf=\"C:\\Tessalin.inf\" flags=2 installer=none reboot=0\n"
        "SetDifxLogCallbackW callback=none\ndifxapi.dll freed\nbthprops.cpl loaded\n" +
            ServiceCall(true) + "bthprops.cpl freed\n");
}

TEST_CASE("each outcome of the driver installation has its line, the restart its own") {
  const std::pair<const wchar_t*, std::string> rows[] = {
      {L"0", "INFO: Driver Install Success\r\n"},
      {L"0xE000020B", "INFO: Driver preinstalled OK\r\n"},
      {L"0xE0000301", "INFO: Driver preinstalled OK\r\n"},
      {L"259", "INFO: Driver is installed - No Update needed\r\n"},
      {L"0xE0000242", "ERR: The drivers publisher is not trusted\r\n"},
      {L"5", "ERR: DriverPackageInstall Error: 00000005 - Access denied.\r\r\n\r\n"},
      {L"0xE0000243", "ERR: DriverPackageInstall Error: E0000243 - \r\n"}};
  Rehearsal machine;
  for (const auto& [result, line] : rows) {
    for (const bool restart : {false, true}) {
      machine.Set(L"DRIVER_RESULT", result);
      machine.Set(L"DRIVER_REBOOT", restart ? L"1" : L"0");
      CHECK(Install(machine, L"none", L"none")
                .ends_with("\r\n" + line + (restart ? "Reboot required\r\n" : "") + kServiceOk));
    }
  }
}

TEST_CASE("what a certificate file cannot give is told, and the other steps run") {
  Rehearsal machine;
  const ScratchFolder& folder = machine.Folder();
  const std::pair<std::wstring, decltype(&Imported)> rows[] = {
      {CertificateFile(L"bundle.p7b"), Imported},
      {(folder.Path() / "missing.cer").wstring(), NotImported},
      {folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx").wstring(), NotImported},
      // Of no bytes at all Wine 8 makes what lies on its stack by chance.
      {folder.Write("empty.cer", "\n").wstring(), NotImported}};
  for (const auto& [file, line] : rows) {
    const std::string output = Install(machine, file, file);
    CHECK(output.starts_with(line("TrustedPublishers", file)));
    CHECK(output.find(line("IntermediateCA", file)) != std::string::npos);
    CHECK(output.ends_with("INFO: Driver Install Success\r\n" + kServiceOk));
  }
  CHECK((SubjectsInStore(L"TrustedPublisher").empty() && SubjectsInStore(L"CA").empty()));
}

TEST_CASE("a machine without the driver interface, or with half of one, gets the other steps") {
  Rehearsal machine;
  const std::string error = "ERR: DriverPackageInstall Error: ";
  machine.Exchange(L"difxapi.dll", L"bthprops.cpl");
  CHECK(Install(machine, L"none", L"none")
            .ends_with(error + "0000007F - Procedure not found.\r\r\n\r\n" + kServiceOk));
  machine.Remove(L"difxapi.dll");
  CHECK(Install(machine, L"none", L"none")
            .ends_with(error + "0000007E - Module not found.\r\r\n\r\n" + kServiceOk));
}

TEST_CASE("without security.dll the process ends at once and without a word") {
  Rehearsal machine;
  // How Wine is told that a library is missing; Windows has it always.
  constexpr const wchar_t* kMissing = L"Software\\Wine\\AppDefaults\\sorrel.exe\\DllOverrides";
  RegSetKeyValueW(HKEY_CURRENT_USER, kMissing, L"security", REG_SZ, L"", sizeof(wchar_t));
  CHECK(Install(machine, kBinary, kBinary, 3).empty());
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kMissing, L"security");
  CHECK((machine.Journal(true).empty() && !Applications().has_value()));
}

TEST_CASE("lines are out before the next step and of any length") {
  Rehearsal machine;
  const std::wstring text(6'000, L'l');
  const std::wstring path(32'000, L'p');
  machine.Set(L"DRIVER_LOG", L"0,0," + text);
  machine.Set(L"DRIVER_CRASH", L"1");
  const std::string output = Install(machine, path, L"none", ERROR_PROCESS_ABORTED);
  CHECK(output.starts_with("ERR: ImportCertToTrustedPublishers '" + Ascii(path) + "' Error: "));
  CHECK(output.ends_with("INFO: 0 - 00000000 - " + Ascii(text) + "\r\n"));
}

}  // namespace kelvo::test
