#include "lib/paths/shell_folder_path.h"

#include "lib/registry/registry_string.h"
#include "tests/support/testing.h"

TEST_CASE("GetShellFolderPath: returns the first usable stored path, else the module's folder") {
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  const StandInKey user(HKEY_CURRENT_USER);
  wchar_t out[MAX_PATH];
  const WString deep = WString(L"C:\\") + WString(240, L'd') + L"\\";
  const std::pair<WString, WString> modules[] = {
      {L"C:\\a b\\c.exe", L"C:\\a b\\"},  {L"", L""},
      {deep + WString(10, L'n'), deep},   {deep + WString(11, L'n'), deep},
      {deep + WString(300, L'n'), deep},  {WString(253, L'n') + L"\\a", WString(253, L'n') + L"\\"},
      {WString(254, L'n') + L"\\a", L""}, {WString(253, L'n'), WString(253, L'n') + L"\\"},
      {WString(254, L'n'), L""}};
  for (const auto& [path, directory] : modules) {
    HMODULE const module = GetModuleHandleW(L"kernel32.dll");
    REPLACE(GetModuleFileNameW, [&](auto, HMODULE asked, auto to, DWORD size) {
      CHECK(asked == module);
      lstrcpynW(to, path.c_str(), static_cast<int>(size));
      return std::min(static_cast<DWORD>(path.length()), size);
    });
    const bool isFound = GetShellFolderPath(&module, out, L"Personal");
    CHECK_BOTH(isFound == !directory.empty(), out == directory);
  }
  const std::tuple<HKEY, const wchar_t*, WString, WString> rows[] = {
      {HKEY_LOCAL_MACHINE, L"Shell Folders", L"D:\\machine", L"D:\\machine\\"},
      {HKEY_CURRENT_USER, L"Shell Folders", L"%TEMP%\\user\\", L"%TEMP%\\user\\"},
      {HKEY_LOCAL_MACHINE, L"User Shell Folders", WString(258, L'm'), WString(258, L'm') + L"\\"},
      {HKEY_CURRENT_USER, L"User Shell Folders", WString(259, L'u'), WString(258, L'm') + L"\\"},
      {HKEY_CURRENT_USER, L"User Shell Folders", L"\\", L"\\"}};
  const WString explorer = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
  for (const auto& [root, key, stored, path] : rows) {
    RegistryWriteExpandString(root, (explorer + key).c_str(), L"Personal", stored.c_str());
    CHECK_BOTH(GetShellFolderPath(nullptr, out, L"Personal"), out == path);
  }
}
