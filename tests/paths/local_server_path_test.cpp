#include "lib/paths/local_server_path.h"

#include <objbase.h>

#include <vector>

#include "lib/paths/file_exists.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

TEST_CASE("a local server is the file that its class registers") {
  const test::ScratchFolder folder;
  const WString server = folder.Write("the server.exe", "").c_str();
  const WString filling(261 - server.length(), L'/');
  struct Row {
    const wchar_t* key;
    WString stored;
    DWORD answer;
    WString path;
  };
  const Row rows[] = {
      {L"\\LocalServer32", server, 0, server},
      {L"\\LocalServer", server + L" /automation /x", 0, server + L" "},
      {L"\\LocalServer32", WString(L"\"") + server + L"\"", 3, L""},
      {L"\\LocalServer32", L"/automation", 3, L""},
      {L"\\LocalServer32", server + filling, 0, server},
      {L"\\LocalServer32", server + filling + L"/", ERROR_MORE_DATA, L""},
  };
  const WString classKey = L"CLSID\\{6B2C2B6E-0B62-4C5B-9E0A-2F4B0C1D2E3F}";
  WString path;
  CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x80110411);
  RegistryWriteString(HKEY_CLASSES_ROOT, L"kelvo.test\\CLSID", nullptr, classKey.c_str() + 6);
  for (const Row& row : rows) {
    CAPTURE(row.key, row.stored);
    path.clear();
    // Windows adds a NUL that it finds behind the data.
    WriteRegistryValue(HKEY_CLASSES_ROOT, (classKey + row.key).c_str(), nullptr, REG_SZ,
                       (row.stored + L"!").c_str(), static_cast<DWORD>(2 * row.stored.length()));
    CHECK(GetLocalServerPath(L"kelvo.test", path) == row.answer);
    CHECK(path == row.path);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, classKey.c_str());
  }
  {
    std::vector<REGSAM> tried;
    const auto open = KELVO_REPLACE_IMPORT(
        RegOpenKeyExW, [&](auto /*original*/, HKEY, auto, DWORD, REGSAM access, HKEY*) {
          return static_cast<LSTATUS>(tried.emplace_back(access));
        });
    CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x20219);
    CHECK(tried == std::vector<REGSAM>{0x20119, 0x20219, 0x20119, 0x20219});
  }
  const auto noText = KELVO_REPLACE_IMPORT(StringFromCLSID, [](auto...) { return E_OUTOFMEMORY; });
  CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x80040011);
  RegDeleteTreeW(HKEY_CLASSES_ROOT, L"kelvo.test");

  CHECK(FileExists((folder.Path() / "*.e?e").c_str()));
  CHECK_FALSE(FileExists((folder.Path() / "*.no").c_str()));
  CHECK_FALSE(FileExists(nullptr));
}

}  // namespace kelvo
