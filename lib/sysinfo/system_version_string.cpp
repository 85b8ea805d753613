#include "lib/sysinfo/system_version_string.h"

#include "lib/platform/internal/guarded_call.h"
#include "lib/sysinfo/internal/system_description.h"
#include "lib/sysinfo/internal/system_facts.h"

namespace kelvo {

WString GetSystemVersionString() {
  internal::SystemFacts facts;
  const bool asked = internal::GuardedCall([&] { facts = internal::AskSystemFacts(); });
  return asked ? internal::DescribeSystem(facts) : WString(internal::kDescriptionCutShort);
}

WString GetSystemVersionNumbers() {
  WString numbers;
  const bool completed = internal::GuardedCall([&] {
    OSVERSIONINFOEXW version{};
    if (internal::QueryVersionRecord(version) != internal::VersionRecord::kNone) {
      numbers = internal::FormatVersionNumbers(version);
    }
  });
  return completed && !numbers.empty() ? numbers : WString(L"0.0.0.0");
}

}  // namespace kelvo
