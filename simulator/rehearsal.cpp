#include "simulator/rehearsal.h"

#include <cwchar>

#include "lib/platform/owned.h"

namespace kelvo::simulator {

namespace {

std::string ToUtf8(const std::wstring& text) {
  const int length = static_cast<int>(text.length());
  std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length,
                                                                 nullptr, 0, nullptr, nullptr)),
                    '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                      static_cast<int>(bytes.length()), nullptr, nullptr);
  return bytes;
}

}  // namespace

DWORD NumberFromEnvironment(const wchar_t* name) {
  return std::wcstoul(TextFromEnvironment(name).c_str(), nullptr, 0);
}

std::wstring TextFromEnvironment(const wchar_t* name) {
  std::wstring text(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  text.resize(GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.length())));
  return text;
}

void WriteToJournal(const std::wstring& line) {
  const std::wstring path = TextFromEnvironment(L"SORREL_SIMULATOR_JOURNAL");
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
    WriteToJournal(std::wstring(name) + L" loaded");
  } else if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    WriteToJournal(std::wstring(name) + L" freed");
  }
}

}  // namespace kelvo::simulator
