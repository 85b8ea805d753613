#include "tests/tool/rehearsal.h"

#include <regex>

#include "tests/support/certificate_store.h"
#include "tool/dependent_applications.h"

namespace kelvo::test {

namespace {
constexpr const wchar_t* kValueName = L"applications";
}

Rehearsal::Rehearsal() {
  for (const wchar_t* const file :
       {L"sorrel.exe", L"simulator\\bthprops.cpl", L"simulator\\difxapi.dll"}) {
    std::filesystem::copy(ProgramPath(file), folder_.Path());
  }
  for (const wchar_t* const variable :
       {L"BLUETOOTH_RESULT", L"DRIVER_RESULT", L"DRIVER_REBOOT", L"DRIVER_LOG", L"DRIVER_CRASH"}) {
    Set(variable, L"");
  }
  Set(L"JOURNAL", (folder_.Path() / "journal").wstring());
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, kValueName);
  EmptyStore(L"TrustedPublisher");
  EmptyStore(L"CA");
}

ChildResult Rehearsal::Run(const std::wstring& words) {
  Remove(L"journal");
  return RunChild(L"\"" + (folder_.Path() / "sorrel.exe").wstring() + L"\" " + words);
}

void Rehearsal::Set(const std::wstring& variable, const std::wstring& value) {
  SetEnvironmentVariableW((L"SORREL_SIMULATOR_" + variable).c_str(), value.c_str());
}

void Rehearsal::Remove(const wchar_t* file) const {
  std::filesystem::remove(folder_.Path() / file);
}

void Rehearsal::Exchange(const wchar_t* file, const wchar_t* other) const {
  CopyFileW((folder_.Path() / other).c_str(), (folder_.Path() / file).c_str(), FALSE);
}

std::string Rehearsal::Journal(bool withLoading) const {
  const std::string lines =
      std::regex_replace(ReadBytes(folder_.Path() / "journal"), std::regex("\r\n"), "\n");
  return withLoading ? lines : std::regex_replace(lines, std::regex(".* (loaded|freed)\n"), "");
}

std::string ServiceCall(bool enabled) {
  return "BluetoothSetLocalServiceInfo radio=none class={3ABB9028-BEAE-4BF1-ACD7-5CD7D5E4E0CA} "
         "instance=0 enabled=" +
         std::to_string(enabled) + " address=000000000000 name=\"Tessalin\" device=\"\"\n";
}

std::optional<std::wstring> Applications() {
  DWORD size = 0;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, kValueName, RRF_RT_REG_SZ, nullptr,
                   nullptr, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  std::wstring list(size / sizeof(wchar_t), L'\0');
  RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, kValueName, RRF_RT_REG_SZ, nullptr,
               list.data(), &size);
  return list.c_str();
}

void SetApplications(const std::wstring& list, DWORD type) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, kValueName, type, list.c_str(),
                  static_cast<DWORD>((list.length() + 1) * sizeof(wchar_t)));
}

}  // namespace kelvo::test
