#pragma once

#include <windows.h>

#include <initializer_list>
#include <regex>
#include <string>
#include <utility>

#include "tests/support/certificate_store.h"
#include "tests/support/child_process.h"
#include "tests/support/files.h"
#include "tests/support/throw_away_prefix.h"
#include "tool/dependent_applications.h"

namespace kelvo::test {

// Returns the registry's list of dependent applications, or "none" if there is no readable list.
inline std::wstring Applications() {
  wchar_t list[2048];
  DWORD size = sizeof(list);
  const bool isThere = RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications",
                                    RRF_RT_REG_SZ, nullptr, list, &size) == ERROR_SUCCESS;
  return isThere ? list : L"none";
}

inline std::string Replaced(const std::string& text, const std::string& pattern,
                            const std::string& by) {
  return std::regex_replace(text, std::regex(pattern), by);
}

// In a sorrel_status.exe report, puts words such as TIME in place of parts that vary between runs.
inline std::string Named(std::string report) {
  report = Replaced(report, "[0-9A-F]{40}", "THUMBPRINT");
  report = Replaced(report, "\\d{4}-[-0-9T:]{14}Z", "TIME");
  report = Replaced(report, "[A-Z]:[^;]*kelvo test[^;\\\\]*", "FOLDER");
  return Replaced(report, "system +[^;]+(; [^;]+); (not )?elevated", "system          WINDOWS$1");
}

// The folder in which Windows publishes the INF files of the driver store.
inline const std::wstring kInfFolder = L"C:\\windows\\inf\\";

// Removes the list of applications and all test certificates, when constructed and when destroyed.
struct CleanMachine {
  CleanMachine() { Clear(); }
  CleanMachine(const CleanMachine&) = delete;
  ~CleanMachine() { Clear(); }

  static void Clear() {
    RemoveTestCertificates();
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
  }
};

// Cleans the machine and creates a new folder with certificates, sorrel.exe and the simulator's
// libraries. This folder is the current folder until this object is destroyed. `further` lists more
// files to copy, each with its path in the test program's folder and its path in the new folder.
struct ProgramFolder : CleanMachine, ScratchFolder {
  ProgramFolder(std::initializer_list<std::pair<const wchar_t*, const wchar_t*>> further) {
    for (const wchar_t* const file :
         {L"sorrel.exe", L"simulator\\bthprops.cpl", L"simulator\\difxapi.dll",
          L"certificates\\binary.cer", L"certificates\\base64.cer", L"certificates\\bundle.p7b"}) {
      Copy(file, std::filesystem::path(file).filename());
    }
    for (const auto& [file, name] : further) {
      std::filesystem::create_directories((path / name).parent_path());
      Copy(file, name);
    }
    std::filesystem::current_path(path / "");
  }
  ~ProgramFolder() { std::filesystem::current_path(ProgramPath(L"")); }

  // Runs a command line that begins with the program's path, relative to this folder.
  static ChildResult Run(const std::wstring& commandLine) {
    const std::filesystem::path program = commandLine.substr(0, commandLine.find(L' '));
    return RunChild(commandLine, absolute(program).c_str());
  }

  void Copy(const wchar_t* file, const std::filesystem::path& name) const {
    std::filesystem::copy_file(ProgramPath(file), path / name);
  }
};

}  // namespace kelvo::test
