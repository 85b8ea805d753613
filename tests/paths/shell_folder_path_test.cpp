#include "lib/paths/shell_folder_path.h"

#include "lib/paths/file_exists.h"
#include "lib/paths/module_directory.h"
#include "lib/registry/registry_string.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

TEST_CASE("a module's directory ends in a backslash and is never a cut one") {
  const WString deep = WString(L"C:\\") + WString(240, L'd') + L"\\";
  const WString rows[][2] = {
      {L"C:\\a b\\c.exe", L"C:\\a b\\"},
      {L"", L""},
      {deep + WString(10, L'n'), deep},
      {deep + WString(11, L'n'), L""},
      {WString(253, L'n'), WString(253, L'n') + L"\\"},
      {WString(254, L'n'), L""},
  };
  for (const auto& [path, directory] : rows) {
    CAPTURE(path);
    const auto module = KELVO_REPLACE_IMPORT(
        GetModuleFileNameW, [&](auto /*original*/, HMODULE, wchar_t* buffer, DWORD size) {
          lstrcpynW(buffer, path.c_str(), static_cast<int>(size));
          return std::min(static_cast<DWORD>(path.length()), size);
        });
    CHECK(WString(GetModuleDirectory(nullptr)) == directory);
  }
  const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
  CHECK(FileExists((WString(GetModuleDirectory(&kernel)) + L"kernel32.dll").c_str()));
}

TEST_CASE("a shell folder comes from the first place that has one, as it is stored there") {
  const test::StandInKey machine(HKEY_LOCAL_MACHINE);
  const test::StandInKey user(HKEY_CURRENT_USER);
  wchar_t out[MAX_PATH];
  CHECK(GetShellFolderPath(nullptr, out, L"Personal"));
  CHECK(WString(out) == GetModuleDirectory(nullptr));
  const HMODULE none = reinterpret_cast<HMODULE>(&out);
  CHECK_FALSE(GetShellFolderPath(&none, out, L"Personal"));
  CHECK(WString(out).empty());

  struct Row {
    HKEY root;
    const wchar_t* key;
    WString stored;
    WString path;
  };
  const Row rows[] = {
      {HKEY_LOCAL_MACHINE, L"Shell Folders", L"D:\\machine", L"D:\\machine\\"},
      {HKEY_CURRENT_USER, L"Shell Folders", L"%TEMP%\\user\\", L"%TEMP%\\user\\"},
      {HKEY_LOCAL_MACHINE, L"User Shell Folders", WString(258, L'm'), WString(258, L'm') + L"\\"},
      {HKEY_CURRENT_USER, L"User Shell Folders", WString(259, L'u'), WString(258, L'm') + L"\\"},
      {HKEY_CURRENT_USER, L"User Shell Folders", L"\\", L"\\"},
  };
  const WString explorer = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
  for (const Row& row : rows) {
    CAPTURE(row.stored);
    RegistryWriteExpandString(row.root, (explorer + row.key).c_str(), L"Personal",
                              row.stored.c_str());
    CHECK(GetShellFolderPath(&none, out, L"Personal"));
    CHECK(WString(out) == row.path);
  }
}

}  // namespace kelvo
