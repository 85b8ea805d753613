#include "lib/paths/local_server_path.h"

#include <objbase.h>

#include "lib/registry/registry_string.h"
#include "tests/support/testing.h"
#include "tests/support/throw_away_prefix.h"

TEST_CASE("GetLocalServerPath: returns the path of a ProgID's COM local server") {
  RequireThrowAwayPrefix();
  const ScratchFolder folder;
  const WString server = folder.Write("the server.exe", "").c_str();
  const WString filling(261 - server.length(), L'/');
  // Not the library's WString: if WString had a bug, RegDeleteTreeW could delete other keys.
  const std::wstring classKey = L"CLSID\\{6B2C2B6E-0B62-4C5B-9E0A-2F4B0C1D2E3F}";
  WString path;
  CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x80110411);
  RegistryWriteString(HKEY_CLASSES_ROOT, L"kelvo.test\\CLSID", nullptr, classKey.c_str() + 6);
  const std::tuple<const wchar_t*, WString, DWORD, WString> rows[] = {
      {L"\\LocalServer32", server, 0, server},
      {L"\\LocalServer", server + L" /automation /x", 0, server + L" "},
      {L"\\LocalServer32", WString(L"\"") + server + L"\"", 3, server + L" "},
      {L"\\LocalServer32", server + filling, 0, server},
      {L"\\LocalServer32", server + filling + L"/", ERROR_MORE_DATA, server}};
  for (const auto& [key, stored, answer, expected] : rows) {
    StoreUnits(HKEY_CLASSES_ROOT, (classKey + key).c_str(), nullptr, REG_SZ, stored.c_str());
    CHECK_BOTH(GetLocalServerPath(L"kelvo.test", path) == answer, path == expected);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, classKey.c_str());
  }
  std::wstring tried;
  REPLACE(RegOpenKeyExW, [&](auto, auto, LPCWSTR subkey, auto, DWORD access, auto) {
    tried += std::wcsrchr(subkey, L'\\') + (L" " + std::to_wstring(access - KEY_READ));
    return static_cast<LSTATUS>(access);
  });
  CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x20219);
  CHECK(tried == L"\\LocalServer32 256\\LocalServer32 512\\LocalServer 256\\LocalServer 512");
  REPLACE(StringFromCLSID, [](auto...) { return E_OUTOFMEMORY; });
  CHECK(GetLocalServerPath(L"kelvo.test", path) == 0x80040011);
  RegDeleteTreeW(HKEY_CLASSES_ROOT, L"kelvo.test");
}
