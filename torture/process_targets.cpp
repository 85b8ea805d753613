// The program itself: several at once, ended half way, and over and over.

#include <algorithm>
#include <fstream>

#include "lib/certificates/certificate_handles.h"
#include "lib/platform/owned.h"
#include "tool/dependent_applications.h"
#include "torture/input.h"

namespace kelvo::torture {

namespace {

OwnedKernelObject Start(const std::wstring& words) {
  std::wstring commandLine = L"sorrel.exe " + words;
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  const OwnedFile output(CreateFileW(L"output", FILE_APPEND_DATA,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_ALWAYS, 0,
                                     nullptr));
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = output.get();
  PROCESS_INFORMATION started{};
  // Under load Wine now and then fails to start a program.
  for (int tries = 0; CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0,
                                     nullptr, nullptr, &startup, &started) == FALSE;) {
    Expect(++tries < 10, "the program starts");
    Sleep(100);
  }
  CloseHandle(started.hThread);
  return OwnedKernelObject(started.hProcess);
}

DWORD ExitCode(const OwnedKernelObject& process) {
  DWORD code = 0;
  WaitForSingleObject(process.get(), INFINITE);
  GetExitCodeProcess(process.get(), &code);
  return code;
}

void RunToEnd(const std::wstring& words) {
  Expect(ExitCode(Start(words)) == 0, "the exit code is 0");
}

std::wstring WellFormedList() {
  const WString list = ReadApplicationList();
  std::vector<WString> names = ApplicationsInList(list);
  std::wstring joined;
  for (const WString& name : names) {
    joined += (joined.empty() ? L"" : L";") + std::wstring(std::wstring_view(name));
  }
  Expect(joined == std::wstring_view(list), "no stray separator stands in the list");
  std::ranges::sort(names);
  Expect(std::ranges::adjacent_find(names) == names.end(), "no name stands twice in the list");
  return joined;
}

// Also of what the damaged certificates left there.
void EmptyStores() {
  for (const std::wstring store : {L"TrustedPublisher", L"CA"}) {
    RegDeleteTreeW(
        HKEY_LOCAL_MACHINE,
        (L"Software\\Microsoft\\SystemCertificates\\" + store + L"\\Certificates").c_str());
  }
}

std::size_t CountCertificates(const wchar_t* store) {
  const OwnedCertificateStore opened(
      CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0,
                    CERT_SYSTEM_STORE_LOCAL_MACHINE | CERT_STORE_READONLY_FLAG, store));
  std::size_t count = 0;
  for (PCCERT_CONTEXT found = nullptr;
       (found = CertEnumCertificatesInStore(opened.get(), found)) != nullptr; ++count) {
  }
  return count;
}

constexpr const wchar_t* kInstall = L"install C:\\Tessalin.inf binary.cer base64.cer ";

void RunAtOnce(Input& input) {
  std::vector<OwnedKernelObject> running;
  for (const wchar_t* const name :
       {L"ant", L"bee", L"cat", L"dog", L"eel", L"fox", L"gnu", L"hen"}) {
    running.push_back(Start((input.Chance() ? L"register " : L"unregister ") + std::wstring(name)));
  }
  for (const OwnedKernelObject& process : running) {
    Expect(ExitCode(process) == 0, "each exits with 0");
  }
  WellFormedList();
  RunToEnd(L"register owl");
  Expect(WellFormedList().ends_with(L"owl"), "the next run adds its name");
  RunToEnd(L"unregister owl");
}

void CutShort(Input& input) {
  EmptyStores();
  const OwnedKernelObject process =
      Start(std::wstring(kInstall) + (input.Chance() ? L"brindle" : L"kite"));
  Sleep(static_cast<DWORD>(input.Number(150)));
  TerminateProcess(process.get(), 1);
  ExitCode(process);
  WellFormedList();
  RunToEnd(std::wstring(kInstall) + L"brindle");
  Expect(WellFormedList().find(L"brindle") != std::wstring::npos, "the next run adds its name");
  Expect(CountCertificates(L"TrustedPublisher") == 1 && CountCertificates(L"CA") == 1,
         "the next run leaves both stores with the certificate");
  RunToEnd(L"uninstall C:\\Tessalin.inf brindle");
}

std::string TakeFile(const char* path) {
  std::ifstream stream(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  stream.close();
  DeleteFileA(path);
  return bytes;
}

// All that a life leaves and reports must be what the first one left and reported.
void Live(Input& /*input*/) {
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, ApplicationsValueName);
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", L"journal");
  EmptyStores();
  TakeFile("journal");
  TakeFile("output");
  std::string life;
  for (const std::wstring& words :
       {std::wstring(kInstall) + L"brindle", std::wstring(kInstall) + L"kite",
        std::wstring(L"uninstall C:\\Tessalin.inf brindle"), std::wstring(L"unregister kite")}) {
    RunToEnd(words);
    const std::wstring list = WellFormedList();
    life += std::string(list.begin(), list.end()) +
            std::to_string(CountCertificates(L"TrustedPublisher")) +
            std::to_string(CountCertificates(L"CA"));
  }
  life += TakeFile("journal") + TakeFile("output");
  SetEnvironmentVariableW(L"SORREL_SIMULATOR_JOURNAL", nullptr);
  static const std::string first = life;
  Expect(life == first && life.size() > 1000, "a life is like the first one");
}

}  // namespace

std::vector<Target> ProcessTargets() {
  return {{"eight at once", RunAtOnce}, {"cut short", CutShort}, {"a life", Live}};
}

}  // namespace kelvo::torture
