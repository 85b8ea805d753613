#include "tests/tool/rehearsal.h"

TEST_CASE("words that match no form give the usage text and 2, and nothing is done") {
  const std::string usage =
      "invalid arguments\r\n"
      "install: Install Certificate, Driver and Register Service, remember dependant "
      "application\r\n"
      "    sorrel.exe install Tessalin.inf trusted.cer trusted_i.cer brindle"
      "uninstall: Unregister Service, remove dependant application\r\n"
      "    sorrel.exe uninstall Tessalin.inf brindle"
      "register: Register Handsfree Service\r\n"
      "    sorrel.exe register"
      "unregister: Unregister Handsfree Service\r\n"
      "    sorrel.exe unregister";
  const Rehearsal machine;
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
    CHECK(machine.Run(words) == usage + "= 00000002 [none]\r\n");
  }
}

TEST_CASE("each form keeps its part of the list and switches the service") {
  const std::string denied =
      "ERR: BluetoothSetLocalServiceInfo Error: 00000005 - Access denied.\r\r\n\r\n";
  const std::string noneLeft = "OK: No more dependant applications\r\n";
  const std::string othersLeft =
      "OK: Dependant applications exist: other\r\n= 00000000 [other]\r\n";
  // The words, the list before, the Bluetooth result, and what comes of it.
  const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, std::string> rows[] = {
      {L"register", L"", L"0", kOk + "= 00000000 []\r\n" + kOn},
      {L"register", L"other", L"0x5", denied + "= 00000005 [other]\r\n" + kOn},
      {L"register", L"", L"0xE0000242",
       "ERR: BluetoothSetLocalServiceInfo Error: E0000242 - \r\n= E0000242 []\r\n" + kOn},
      {L"unregister", L"other", L"0", kOk + "= 00000000 [other]\r\n" + kOff},
      {L"register brindle", L"", L"0x5", denied + "= 00000005 [brindle]\r\n" + kOn},
      {L"register brindle", L"brindle", L"0", kOk + "= 00000000 [brindle]\r\n" + kOn},
      {L"unregister brindle", L"brindle", L"0x5",
       noneLeft + denied + "= 00000005 [none]\r\n" + kOff},
      {L"unregister brindle", L"brindle;other", L"0x5", othersLeft},
      {L"uninstall none.inf brindle", L"other;brindle", L"0", othersLeft},
      {L"uninstall none.inf brindle", L"brindle", L"0x5",
       noneLeft + denied + "= 00000000 [none]\r\n" + kOff},
      {L"uninstall none.inf brindle", L"", L"0", noneLeft + kOk + "= 00000000 [none]\r\n" + kOff}};
  const Rehearsal machine;
  std::filesystem::remove(machine.folder / "difxapi.dll");
  for (const auto& [words, before, result, expected] : rows) {
    CAPTURE(words, before, result);
    SetApplications(before);
    CHECK(machine.Run(words, {{L"BLUETOOTH_RESULT", result}}) == expected);
  }
}

TEST_CASE("a machine without a Bluetooth library, or with one that lacks the function") {
  const Rehearsal machine;
  std::filesystem::rename(machine.folder / "difxapi.dll", machine.folder / "bthprops.cpl");
  CHECK(machine.Run(L"register") ==
        "ERR: BluetoothSetLocalServiceInfo Error: 0000007F - Procedure not found.\r\r\n\r\n"
        "= 0000007F [none]\r\ndifxapi.dll loaded\r\ndifxapi.dll freed\r\n");
  std::filesystem::remove(machine.folder / "bthprops.cpl");
  for (const wchar_t* const words : {L"register", L"unregister", L"register none"}) {
    CHECK(machine.Run(words) ==
          "ERR: no Bluetooth available, bthprops.cpl missing\r\n= 00000000 [none]\r\n");
  }
}
