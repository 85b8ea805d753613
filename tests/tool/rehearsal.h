#pragma once

#include "tests/support/certificate_store.h"
#include "tests/support/testing.h"
#include "tool/dependent_applications.h"

namespace kelvo::test {

// The list of dependent applications in the registry; "none" when there is no such value.
inline std::wstring Applications() {
  wchar_t list[2048];
  DWORD size = sizeof(list);
  const bool isThere = RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications",
                                    RRF_RT_REG_SZ, nullptr, list, &size) == ERROR_SUCCESS;
  return isThere ? list : L"none";
}

inline void SetApplications(const std::wstring& list, DWORD type = REG_SZ) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", type, list.c_str(),
                  static_cast<DWORD>((list.length() + 1) * sizeof(wchar_t)));
}

inline std::string Ascii(const std::wstring& text) { return {text.begin(), text.end()}; }

// A copy of sorrel.exe with the simulator's libraries beside it in a folder of its own, on a
// machine with no dependent application recorded and both certificate stores empty.
struct Rehearsal {
  // Each setting tells the simulator something: the part of a variable's name behind
  // SORREL_SIMULATOR_, and its value.
  using Settings = std::map<std::wstring, std::wstring>;

  Rehearsal() {
    for (const wchar_t* const file : {L"sorrel.exe", L"bthprops.cpl", L"difxapi.dll"}) {
      const std::wstring source = (*file == L's' ? L"" : L"simulator\\") + std::wstring(file);
      std::filesystem::copy_file(ProgramPath(source), folder / file);
    }
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
    EmptyStores();
  }

  // Runs sorrel.exe with these words and tells all that came of it: what it wrote, its exit code
  // and the list of applications as "= 00000000 [a;b]", and the journal.
  std::string Run(const std::wstring& words, Settings settings = {}) const {
    std::filesystem::remove(folder / "journal");
    settings[L"JOURNAL"] = folder / "journal";
    const auto set = [&](auto value) {
      for (const auto& setting : settings) {
        SetEnvironmentVariableW((L"SORREL_SIMULATOR_" + setting.first).c_str(), value(setting));
      }
    };
    set([](auto& setting) { return setting.second.c_str(); });
    const ChildResult run = RunChild(L"\"" + (folder / "sorrel.exe").wstring() + L"\" " + words);
    set([](auto&) { return nullptr; });
    CHECK(run.errors.empty());
    char code[16];
    std::snprintf(code, sizeof(code), "= %08lX [", run.exitCode);
    return run.output + code + Ascii(Applications()) + "]\r\n" + ReadBytes(folder / "journal");
  }

  ScratchFolder folder;
};

const std::string kSetService =
    "BluetoothSetLocalServiceInfo radio=none class={3ABB9028-BEAE-4BF1-ACD7-5CD7D5E4E0CA} "
    "instance=0 enabled=";
const std::string kService = " address=000000000000 name=\"Tessalin\" device=\"\"\r\n";
// What the journal tells when the service is registered, and when it is unregistered.
const std::string kOn =
    "bthprops.cpl loaded\r\n" + kSetService + "1" + kService + "bthprops.cpl freed\r\n";
const std::string kOff =
    "bthprops.cpl loaded\r\n" + kSetService + "0" + kService + "bthprops.cpl freed\r\n";
const std::string kOk = "OK: BluetoothSetLocalServiceInfo\r\n";

}  // namespace kelvo::test
