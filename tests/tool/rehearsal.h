#pragma once

#include "lib/string/format_text.h"
#include "tests/support/certificate_store.h"
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

inline std::string Ascii(const std::wstring& text) { return {text.begin(), text.end()}; }

// A copy of sorrel.exe with the simulator's libraries and certificates beside it in a folder of its
// own, which is the current one, on a machine with no dependent application recorded and both
// certificate stores empty.
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
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
    EmptyStores();
  }
  ~Rehearsal() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs a command line of cmd.exe and tells all that came of it: what it wrote, its exit code, the
  // list of applications and the number of certificates in each store, then the journal.
  static std::string Run(const std::wstring& command) {
    std::filesystem::remove("journal");
    const ChildResult run = RunChild(L"cmd /c " + command);
    CHECK(run.errors.empty());
    const WString state =
        FormatText(L"= %08lX [%s] %d %d\r\n", run.exitCode, Applications().c_str(),
                   CertificatesInStore(L"TrustedPublisher"), CertificatesInStore(L"CA"));
    return run.output + Ascii(state.c_str()) + ReadBytes("journal");
  }

  ScratchFolder folder;
};

}  // namespace kelvo::test
