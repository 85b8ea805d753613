#include "lib/sysinfo/system_version_string.h"

#include <cstring>
#include <sstream>

#include "tests/sysinfo/played_machine.h"

// What that Windows was asked, in order.
static std::string asked;
static void Ask(const std::string& question, const std::string& function) {
  asked += " " + question;
  if (Has("raises " + function)) {
    *static_cast<volatile int*>(nullptr) = 1;
  }
}

static OSVERSIONINFOEXW version;
static WORD architecture;
static DWORD product;
static void WINAPI TellSystem(SYSTEM_INFO* info) { info->wProcessorArchitecture = architecture; }
static BOOL WINAPI TellProduct(DWORD major, DWORD, DWORD pack, DWORD packMinor, DWORD* type) {
  Ask("product", "GetProductInfo");
  *type = major == 6 && pack + packMinor == 0 ? product : 0;
  return TRUE;
}

TEST_CASE("each Windows is asked and described as windows_names.txt says") {
  REPLACE(GetVersionExW, [](auto, OSVERSIONINFOW* record) {
    const DWORD size = record->dwOSVersionInfoSize;
    Ask(std::to_string(size), "GetVersionExW");
    std::memcpy(record, &version, size);
    record->dwOSVersionInfoSize = size;
    return !Has("no version") && (size == 276 || !Has("short"));
  });
  REPLACE(GetSystemInfo, [](auto, auto* info) { info->wProcessorArchitecture = 0xABCD; });
  REPLACE(GetSystemMetrics, [](auto, int index) {
    Ask(std::to_string(index), "GetSystemMetrics");
    return Has("metric " + std::to_string(index)) ? 1 : 0;
  });
  REPLACE(RegOpenKeyExW, [](auto, HKEY root, std::wstring path, DWORD, REGSAM access, HKEY* key) {
    Ask(Ascii(path) + "(" + std::to_string(access) + ")", "RegOpenKeyExW");
    const bool opens = root == HKEY_LOCAL_MACHINE && Has(Ascii(path.substr(path.rfind(L'\\') + 1)));
    *key = opens ? root : nullptr;
    return opens ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
  });
  REPLACE(RegQueryValueExW, [](auto, auto, std::wstring name, auto, auto, BYTE* data, DWORD* size) {
    Ask(Ascii(name), "RegQueryValueExW");
    // What the registry stores without a terminator.
    const std::string text = given.substr(given.find("ProductOptions ") + 15);
    std::copy_n(text.begin(), std::min<std::size_t>(text.length(), *size / 2),
                reinterpret_cast<wchar_t*>(data));
    const DWORD room = std::exchange(*size, static_cast<DWORD>(text.length() * 2));
    return Has("size only") || *size <= room ? ERROR_SUCCESS : ERROR_MORE_DATA;
  });
  REPLACE(RegCloseKey, [](auto...) { return Ask("closed", "RegCloseKey"), ERROR_SUCCESS; });
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\windows_names.txt")));
  std::string seen;
  for (std::string answer; std::getline(cases, given) && std::getline(cases, answer);) {
    version = {};
    version.dwBuildNumber = 0xABCD0000 + 1381;
    char pack[129] = "";
    std::sscanf(given.c_str(),
                "platform %lu, %lu.%lu, suites %hx, type %hhu, architecture %hu, "
                "product %lx, pack \"%128[^\"]\"",
                &version.dwPlatformId, &version.dwMajorVersion, &version.dwMinorVersion,
                &version.wSuiteMask, &version.wProductType, &architecture, &product, pack);
    std::copy_n(pack, std::strlen(pack), version.szCSDVersion);
    const ReplacedExport native("GetNativeSystemInfo", Has("no native") ? nullptr : &TellSystem);
    const ReplacedExport info("GetProductInfo", product != 0 ? &TellProduct : nullptr);
    const WString numbers = GetSystemVersionNumbers();
    asked.clear();
    const WString line = GetSystemVersionString();
    seen += given + "\n" + Ascii(numbers.c_str()) + ", asked" + asked + ": " + Ascii(line.c_str()) +
            "\n";
  }
  CheckAgainstFile(seen, L"windows_names.txt");
}
