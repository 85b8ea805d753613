#include "lib/sysinfo/terminal_server.h"

#include <windows.h>

#include <cwchar>

#include "lib/platform/module.h"
#include "lib/platform/owned.h"

namespace kelvo {

namespace {

bool HasTerminalSuite() {
  auto* const setCondition =
      KELVO_FIND_FUNCTION(GetModuleHandleA("ntdll.dll"), VerSetConditionMask);
  auto* const verifyVersion =
      KELVO_FIND_FUNCTION(GetModuleHandleA("KERNEL32.DLL"), VerifyVersionInfoA);
  if (setCondition == nullptr || verifyVersion == nullptr) {
    return false;
  }
  OSVERSIONINFOEXA wanted{};
  wanted.dwOSVersionInfoSize = sizeof(wanted);
  wanted.wSuiteMask = VER_SUITE_TERMINAL;
  return verifyVersion(&wanted, VER_SUITENAME, setCondition(0, VER_SUITENAME, VER_AND)) != FALSE;
}

// `list` must end with two NULs.
bool ListContains(const wchar_t* list, const wchar_t* text) {
  for (; *list != L'\0'; list += std::wcslen(list) + 1) {
    if (lstrcmpW(list, text) == 0) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool IsWinNTTerminalServer() {
  const DWORD version = GetVersion();
  constexpr DWORD kNotNt = 0x80000000;
  if ((version & kNotNt) != 0) {
    return false;
  }
  const DWORD major = LOBYTE(version);
  return major >= 5 ? HasTerminalSuite() : IsProductSuiteInstalled(L"Terminal Server");
}

bool IsProductSuiteInstalled(const wchar_t* suiteName) {
  constexpr const wchar_t* kProductOptions = L"System\\CurrentControlSet\\Control\\ProductOptions";
  constexpr const wchar_t* kProductSuite = L"ProductSuite";
  OwnedRegistryKey key;
  DWORD size = 0;
  if (OpenRegistryKey(HKEY_LOCAL_MACHINE, kProductOptions, KEY_READ, key) != ERROR_SUCCESS ||
      RegQueryValueExW(key.get(), kProductSuite, nullptr, nullptr, nullptr, &size) !=
          ERROR_SUCCESS ||
      size == 0) {
    return false;
  }
  // The value may grow before the second query, so the buffer gets twice the value's size. The
  // buffer also gets two more characters. They stay zero and terminate a list that is stored
  // without terminators.
  size *= 2;
  const OwnedLocalMemory<wchar_t> list(
      static_cast<wchar_t*>(LocalAlloc(LPTR, SIZE_T{size} + (2 * sizeof(wchar_t)))));
  DWORD type = REG_NONE;
  return list &&
         RegQueryValueExW(key.get(), kProductSuite, nullptr, &type,
                          reinterpret_cast<BYTE*>(list.get()), &size) == ERROR_SUCCESS &&
         type == REG_MULTI_SZ && ListContains(list.get(), suiteName);
}

}  // namespace kelvo
