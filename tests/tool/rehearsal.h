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

// A copy of sorrel.exe with the simulator's libraries and certificates beside it in a folder of its
// own, which is the current one, on a machine with no dependent application recorded and both
// certificate stores empty.
struct Rehearsal {
  // Tell the simulator something: the part of a variable's name behind SORREL_SIMULATOR_, and its
  // value.
  using Settings = std::map<std::wstring, std::wstring>;

  Rehearsal() {
    for (const wchar_t* const file :
         {L"sorrel.exe", L"simulator\\bthprops.cpl", L"simulator\\difxapi.dll",
          L"certificates\\binary.cer", L"certificates\\base64.cer", L"certificates\\bundle.p7b"}) {
      const std::filesystem::path source = ProgramPath(file);
      std::filesystem::copy_file(source, folder / source.filename());
    }
    std::filesystem::current_path(folder / "");
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
    EmptyStores();
  }
  ~Rehearsal() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs sorrel.exe with these words and tells all that came of it: what it wrote, its exit code
  // and the list of applications as "= 00000000 [a;b]", and the journal.
  std::string Run(const std::wstring& words, Settings settings = {}) const {
    std::filesystem::remove("journal");
    settings[L"JOURNAL"] = L"journal";
    for (const auto& [name, value] : settings) {
      SetEnvironmentVariableW((L"SORREL_SIMULATOR_" + name).c_str(), value.c_str());
    }
    const ChildResult run = RunChild(L"\"" + (folder / "sorrel.exe").wstring() + L"\" " + words);
    for (const auto& [name, value] : settings) {
      SetEnvironmentVariableW((L"SORREL_SIMULATOR_" + name).c_str(), nullptr);
    }
    CHECK(run.errors.empty());
    char code[16];
    std::snprintf(code, sizeof(code), "= %08lX [", run.exitCode);
    return run.output + code + Ascii(Applications()) + "]\r\n" + ReadBytes("journal");
  }

  ScratchFolder folder;
};

}  // namespace kelvo::test
