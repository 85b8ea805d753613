#include "lib/string/string_tokenizer.h"
#include "tests/tool/rehearsal.h"

TEST_CASE("what each command does stands in transcript.txt") {
  const Rehearsal machine;
  std::string seen;
  const auto show = [&](const std::wstring& words, const std::wstring& before = L"none",
                        const Rehearsal::Settings& settings = {}) {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
    if (before != L"none") {
      SetApplications(before);
    }
    seen += "\r\n> " + Ascii(words) + " [" + Ascii(before) + "]";
    for (const auto& [name, value] : settings) {
      seen += " " + Ascii(name) + "=" + Ascii(value);
    }
    seen += "\r\n" + machine.Run(words, settings);
  };
  const auto showStores = [&] {
    seen += Ascii(SubjectsInStore(L"TrustedPublisher") + L" " + SubjectsInStore(L"CA")) + "\r\n";
  };
  const std::string usage = machine.Run(L"");
  const WString nearForms =
      L"install|install a b c|install a b c d e|Install a b c d|\"install \" a b c d|"
      L"installx a b c d|uninstall|uninstall a|uninstall a b c|UNINSTALL a b|REGISTER|Register app|"
      L"register a b|unregister a b|registe|unregisterx|\"\"|a b|a b c|a b c d e";
  for (StringTokenizer words(nearForms, L"|", true); words.HasMoreTokens();) {
    CHECK(machine.Run(words.NextToken().c_str()) == usage);
  }
  seen += "Words that match no form\r\n\r\n" + usage;
  seen += "\r\nInstall\r\n";
  const std::wstring install = L"install C:\\Tessalin.inf binary.cer base64.cer brindle";
  show(install, L"none", {{L"DRIVER_LOG", L"1,0,Copying|3,5|2,0xE0000242,\u00E9\u017D"}});
  showStores();
  for (const wchar_t* const result :
       {L"0", L"0xE000020B", L"0xE0000301", L"259", L"0xE0000242", L"5", L"0xE0000243"}) {
    show(install, L"brindle", {{L"DRIVER_RESULT", result}});
    show(install, L"other", {{L"DRIVER_RESULT", result}, {L"DRIVER_REBOOT", L"1"}});
  }
  seen += "\r\nCertificate files, none of which holds a single one\r\n";
  EmptyStores();
  machine.folder.Write("garbage.cer", "-----BEGIN CERTIFICATE-----\nx");
  // Of no bytes at all Wine 8 makes what lies on its stack by chance.
  machine.folder.Write("empty.cer", "\n");
  for (const std::wstring file : {L"missing.cer", L"garbage.cer", L"empty.cer", L"bundle.p7b"}) {
    show(L"install Tessalin.inf " + file + L" " + file + L" brindle");
  }
  showStores();
  seen += "\r\nA driver library without the functions, then none\r\n";
  CopyFileW(L"bthprops.cpl", L"difxapi.dll", FALSE);
  show(install);
  std::filesystem::remove("difxapi.dll");
  show(install);
  seen += "\r\nThe other forms, without that library\r\n";
  const Rehearsal::Settings denied = {{L"BLUETOOTH_RESULT", L"5"}};
  show(L"register");
  show(L"register", L"other", denied);
  show(L"register", L"", {{L"BLUETOOTH_RESULT", L"0xE0000242"}});
  show(L"unregister", L"other");
  show(L"register brindle", L"none", denied);
  show(L"register brindle", L"brindle");
  show(L"unregister brindle", L"brindle", denied);
  show(L"unregister brindle", L"brindle;other", denied);
  show(L"uninstall none.inf brindle", L"other;brindle");
  show(L"uninstall none.inf brindle", L"brindle", denied);
  show(L"uninstall none.inf brindle");
  seen += "\r\nA Bluetooth library without the function, then none\r\n";
  CopyFileW(ProgramPath(L"simulator\\difxapi.dll").c_str(), L"bthprops.cpl", FALSE);
  show(L"register");
  std::filesystem::remove("bthprops.cpl");
  show(L"register");
  show(L"unregister");
  show(L"register brindle");
  seen += "\r\nNo security.dll\r\n";
  // How Wine is told so; Windows has it always.
  const wchar_t* const missing = L"Software\\Wine\\AppDefaults\\sorrel.exe\\DllOverrides";
  RegSetKeyValueW(HKEY_CURRENT_USER, missing, L"security", REG_SZ, L"", sizeof(wchar_t));
  show(install);
  RegDeleteKeyValueW(HKEY_CURRENT_USER, missing, L"security");
  CheckAgainstFile(seen, L"transcript.txt");
}

TEST_CASE("a process that ends too early loses no line, of whatever length") {
  const Rehearsal machine;
  const std::wstring path(32'000, L'p');
  const std::wstring text(6'000, L'l');
  const std::string seen = machine.Run(L"install Tessalin.inf " + path + L" none brindle",
                                       {{L"DRIVER_LOG", L"0,0," + text}, {L"DRIVER_CRASH", L"1"}});
  CHECK(seen.starts_with("ERR: ImportCertToTrustedPublishers '" + Ascii(path) + "' Error: "));
  CHECK_THAT(seen, Catch::Contains("\r\nINFO: 0 - 00000000 - " + Ascii(text) +
                                   "\r\n= 0000042B [none]\r\ndifxapi.dll loaded\r\n"));
}
