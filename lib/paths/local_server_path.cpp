#include "lib/paths/local_server_path.h"

#include <objbase.h>

#include <algorithm>
#include <array>

#include "lib/paths/file_exists.h"
#include "lib/registry/registry_key.h"

namespace kelvo {

namespace {

struct ComText {
  using Handle = wchar_t*;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CoTaskMemFree(handle); }
};

DWORD FindClassKey(const wchar_t* progId, WString& classKey) {
  CLSID classId{};
  if (FAILED(CLSIDFromProgID(progId, &classId))) {
    return static_cast<DWORD>(COMADMIN_E_NOREGISTRYCLSID);
  }
  Owned<ComText> text;
  if (FAILED(StringFromCLSID(classId, text.Receive()))) {
    return static_cast<DWORD>(OLE_E_CANTCONVERT);
  }
  classKey = WString(L"CLSID\\") + text.get();
  return ERROR_SUCCESS;
}

// Tries both registry views for each subkey. Does not call OpenRegistryKey, which would add
// RegistryAccessFlags: these flags can contain the flag of the other view.
LSTATUS OpenServerKey(const WString& classKey, OwnedRegistryKey& key) {
  LSTATUS status = ERROR_SUCCESS;
  for (const wchar_t* const server : {L"\\LocalServer32", L"\\LocalServer"}) {
    const WString subkey = classKey + server;
    for (const REGSAM view : {REGSAM{KEY_WOW64_64KEY}, REGSAM{KEY_WOW64_32KEY}}) {
      status = RegOpenKeyExW(HKEY_CLASSES_ROOT, subkey.c_str(), 0, KEY_READ | view, key.Receive());
      if (status == ERROR_SUCCESS) {
        return ERROR_SUCCESS;
      }
    }
  }
  return status;
}

LSTATUS ReadServer(const WString& classKey, WString& server) {
  OwnedRegistryKey key;
  LSTATUS status = OpenServerKey(classKey, key);
  if (status != ERROR_SUCCESS) {
    return status;
  }
  constexpr DWORD kCapacity = 522;
  // The buffer is zeroed and has one character more than RegQueryValueExW can write. A string that
  // is stored without a NUL is therefore still terminated.
  std::array<wchar_t, (kCapacity / sizeof(wchar_t)) + 1> text{};
  DWORD size = kCapacity;
  status = RegQueryValueExW(key.get(), nullptr, nullptr, nullptr,
                            reinterpret_cast<BYTE*>(text.data()), &size);
  if (status == ERROR_SUCCESS) {
    server = text.data();
  }
  return status;
}

}  // namespace

DWORD GetLocalServerPath(const wchar_t* progId, WString& path) {
  WString classKey;
  const DWORD failure = FindClassKey(progId, classKey);
  if (failure != ERROR_SUCCESS) {
    return failure;
  }
  WString server;
  const LSTATUS status = ReadServer(classKey, server);
  if (status != ERROR_SUCCESS) {
    return static_cast<DWORD>(status);
  }
  server.resize(std::min(server.find(L"/"), server.length()));
  if (!FileExists(server.c_str())) {
    return ERROR_PATH_NOT_FOUND;
  }
  path = std::move(server);
  return ERROR_SUCCESS;
}

}  // namespace kelvo
