#include "simulator/rehearsal.h"

#include <cwchar>

#include "lib/platform/owned.h"
#include "lib/string/utf8.h"

namespace kelvo::simulator {

DWORD NumberFromEnvironment(const wchar_t* name) {
  return std::wcstoul(TextFromEnvironment(name).c_str(), nullptr, 0);
}

WString TextFromEnvironment(const wchar_t* name) {
  WString text(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  text.resize(GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.length())));
  return text;
}

void WriteToJournal(const WString& line) {
  const WString path = TextFromEnvironment(L"SORREL_SIMULATOR_JOURNAL");
  const OwnedFile journal(CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (journal) {
    const std::string bytes = ToUtf8(line + L"\r\n");
    DWORD written = 0;
    WriteFile(journal.get(), bytes.data(), static_cast<DWORD>(bytes.length()), &written, nullptr);
  }
}

void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds) {
  if (reason == DLL_PROCESS_ATTACH) {
    WriteToJournal(WString(name) + L" loaded");
  } else if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    WriteToJournal(WString(name) + L" freed");
  }
}

}  // namespace kelvo::simulator
