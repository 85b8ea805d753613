#include <tuple>

#include "tests/support/catch.h"
#include "tests/tool/rehearsal.h"

namespace kelvo::test {

namespace {

const std::string kUsage =
    "invalid arguments\r\n"
    "install: Install Certificate, Driver and Register Service, remember dependant application\r\n"
    "    sorrel.exe install Tessalin.inf trusted.cer trusted_i.cer brindle"
    "uninstall: Unregister Service, remove dependant application\r\n"
    "    sorrel.exe uninstall Tessalin.inf brindle"
    "register: Register Handsfree Service\r\n"
    "    sorrel.exe register"
    "unregister: Unregister Handsfree Service\r\n"
    "    sorrel.exe unregister";

const std::string kOk = "OK: BluetoothSetLocalServiceInfo\r\n";
const std::string kNoneLeft = "OK: No more dependant applications\r\n";

}  // namespace

TEST_CASE("words that match no form give the usage text and 2, and nothing is done") {
  Rehearsal machine;
  for (const wchar_t* const words : {L"",
                                     L"install",
                                     L"install a b c",
                                     L"install a b c d e",
                                     L"Install a b c d",
                                     L"\"install \" a b c d",
                                     L"installx a b c d",
                                     L"uninstall",
                                     L"uninstall a",
                                     L"uninstall a b c",
                                     L"UNINSTALL a b",
                                     L"REGISTER",
                                     L"Register app",
                                     L"register a b",
                                     L"unregister a b",
                                     L"registe",
                                     L"unregisterx",
                                     L"\"\"",
                                     L"a b",
                                     L"a b c",
                                     L"a b c d e"}) {
    CAPTURE(words);
    const ChildResult run = machine.Run(words);
    CHECK((run.exitCode == 2 && run.output == kUsage && run.errors.empty()));
    CHECK((machine.Journal(true).empty() && !Applications().has_value()));
  }
}

TEST_CASE("each form keeps its part of the list and switches the service") {
  const auto denied = L"0x5";
  const std::string deniedLine =
      "ERR: BluetoothSetLocalServiceInfo Error: 00000005 - Access denied.\r\r\n\r\n";
  // The words, the list before ("" for none), the Bluetooth result; exit code, output, list and
  // calls.
  using Row = std::tuple<const wchar_t*, std::wstring, const wchar_t*, DWORD, std::string,
                         const wchar_t*, std::string>;
  const Row rows[] = {
      {L"register", L"", L"0", 0, kOk, L"", ServiceCall(true)},
      {L"register", L"other", denied, 5, deniedLine, L"other", ServiceCall(true)},
      {L"register", L"", L"0xE0000242", 0xE0000242,
       "ERR: BluetoothSetLocalServiceInfo Error: E0000242 - \r\n", L"", ServiceCall(true)},
      {L"unregister", L"other", L"0", 0, kOk, L"other", ServiceCall(false)},
      {L"register brindle", L"", denied, 5, deniedLine, L"brindle", ServiceCall(true)},
      {L"register brindle", L"brindle", L"0", 0, kOk, L"brindle", ServiceCall(true)},
      {L"unregister brindle", L"brindle", denied, 5, kNoneLeft + deniedLine, L"",
       ServiceCall(false)},
      {L"unregister brindle", L"brindle;other", denied, 0,
       "OK: Dependant applications exist: other\r\n", L"other", ""},
      {L"uninstall none.inf brindle", L"other;brindle", L"0", 0,
       "OK: Dependant applications exist: other\r\n", L"other", ""},
      {L"uninstall none.inf brindle", L"brindle", denied, 0, kNoneLeft + deniedLine, L"",
       ServiceCall(false)},
      {L"uninstall none.inf brindle", L"", L"0", 0, kNoneLeft + kOk, L"", ServiceCall(false)},
  };
  for (const auto& [words, before, result, exitCode, output, after, calls] : rows) {
    CAPTURE(words, before, result);
    Rehearsal machine;
    machine.Remove(L"difxapi.dll");
    machine.Set(L"BLUETOOTH_RESULT", result);
    if (!before.empty()) {
      SetApplications(before);
    }
    const ChildResult run = machine.Run(words);
    CHECK((run.exitCode == exitCode && run.errors.empty()));
    CHECK(run.output == output);
    CHECK(Applications().value_or(L"") == after);
    CHECK(machine.Journal() == calls);
  }
}

TEST_CASE("without a Bluetooth library the line says so and the exit code is 0") {
  Rehearsal machine;
  machine.Remove(L"bthprops.cpl");
  for (const wchar_t* const words : {L"register", L"unregister", L"register brindle"}) {
    const ChildResult run = machine.Run(words);
    CHECK((run.exitCode == 0 &&
           run.output == "ERR: no Bluetooth available, bthprops.cpl missing\r\n"));
  }
  CHECK(Applications() == L"brindle");
}

TEST_CASE("a Bluetooth library without the function gives the lookup's error and is freed") {
  Rehearsal machine;
  machine.Exchange(L"bthprops.cpl", L"difxapi.dll");
  const ChildResult run = machine.Run(L"register");
  CHECK(run.exitCode == ERROR_PROC_NOT_FOUND);
  CHECK(run.output ==
        "ERR: BluetoothSetLocalServiceInfo Error: 0000007F - Procedure not found.\r\r\n\r\n");
  CHECK(machine.Journal(true) == "difxapi.dll loaded\ndifxapi.dll freed\n");
}

}  // namespace kelvo::test
