#include "lib/sysinfo/internal/system_facts.h"

#include <array>
#include <span>
#include <type_traits>

#include "lib/platform/internal/guarded_call.h"
#include "lib/platform/module.h"
#include "lib/registry/registry_key.h"

namespace kelvo::internal {

namespace {

constexpr const wchar_t* kProductOptions = L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions";
constexpr const wchar_t* kHotfix =
    L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";

template <typename Question>
auto Ask(Question question) -> Answer<std::invoke_result_t<Question>> {
  using Value = std::invoke_result_t<Question>;
  Value value{};
  const bool completed = GuardedCall([&] { value = question(); });
  return completed ? Answer<Value>(std::move(value)) : Answer<Value>::Raised();
}

HMODULE Kernel32() { return GetModuleHandleW(L"kernel32.dll"); }

WORD QueryArchitecture() {
  SYSTEM_INFO system{};
  auto* const getNativeInfo = KELVO_FIND_FUNCTION(Kernel32(), GetNativeSystemInfo);
  (getNativeInfo != nullptr ? getNativeInfo : GetSystemInfo)(&system);
  return system.wProcessorArchitecture;
}

int FirstMetric(std::span<const int> metrics) {
  for (const int metric : metrics) {
    if (GetSystemMetrics(metric) != 0) {
      return metric;
    }
  }
  return 0;
}

Answer<int> AskMetric(DWORD minor) {
  static constexpr int kXp[] = {SM_STARTER, SM_MEDIACENTER, SM_TABLETPC};
  static constexpr int kServer2003[] = {SM_SERVERR2};
  switch (minor) {
    case 1:
      return Ask([] { return FirstMetric(kXp); });
    case 2:
      return Ask([] { return FirstMetric(kServer2003); });
    default:
      return 0;
  }
}

std::optional<DWORD> QueryProduct(const OSVERSIONINFOEXW& version) {
  auto* const getProductInfo = KELVO_FIND_FUNCTION(Kernel32(), GetProductInfo);
  if (getProductInfo == nullptr) {
    return std::nullopt;
  }
  DWORD type = PRODUCT_UNDEFINED;
  getProductInfo(version.dwMajorVersion, version.dwMinorVersion, 0, 0, &type);
  return type;
}

ProductOption QueryProductOption(OwnedRegistryKey& key) {
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kProductOptions, 0, KEY_QUERY_VALUE, key.Receive()) !=
      ERROR_SUCCESS) {
    return {.state = ProductOption::State::kNoKey, .productType = {}};
  }
  constexpr DWORD kLength = 100;
  // One more than the registry is told of, for a value stored without a terminator.
  std::array<wchar_t, kLength + 1> type{};
  DWORD size = kLength * sizeof(wchar_t);
  if (RegQueryValueExW(key.get(), L"ProductType", nullptr, nullptr,
                       reinterpret_cast<BYTE*>(type.data()), &size) != ERROR_SUCCESS ||
      size > kLength * sizeof(wchar_t)) {
    // This answer ends the text, and its key has always been left open.
    key.release();
    return {.state = ProductOption::State::kNoValue, .productType = {}};
  }
  return {.state = ProductOption::State::kRead, .productType = type.data()};
}

bool QueryHotfix(OwnedRegistryKey& key) {
  return RegOpenKeyExW(HKEY_LOCAL_MACHINE, kHotfix, 0, KEY_QUERY_VALUE, key.Receive()) ==
         ERROR_SUCCESS;
}

void AskNtFacts(SystemFacts& facts) {
  const OSVERSIONINFOEXW& version = facts.version;
  OwnedRegistryKey key;
  if (version.dwMajorVersion == 6) {
    facts.product = Ask([&] { return QueryProduct(version); });
  } else if (version.dwMajorVersion == 5) {
    facts.metric = AskMetric(version.dwMinorVersion);
  } else if (version.dwMajorVersion == 4) {
    facts.hasHotfixQ246009 = Ask([&] { return QueryHotfix(key); });
  }
  if (facts.record == VersionRecord::kShort) {
    facts.productOption = Ask([&] { return QueryProductOption(key); });
  }
}

}  // namespace

VersionRecord QueryVersionRecord(OSVERSIONINFOEXW& version) {
  version = {};
  auto* const record = reinterpret_cast<OSVERSIONINFOW*>(&version);
  version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXW);
  if (GetVersionExW(record) != FALSE) {
    return VersionRecord::kExtended;
  }
  version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOW);
  return GetVersionExW(record) != FALSE ? VersionRecord::kShort : VersionRecord::kNone;
}

SystemFacts AskSystemFacts() {
  SystemFacts facts;
  facts.record = QueryVersionRecord(facts.version);
  if (facts.record == VersionRecord::kNone) {
    return facts;
  }
  facts.architecture = QueryArchitecture();
  if (facts.version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
    AskNtFacts(facts);
  }
  return facts;
}

}  // namespace kelvo::internal
