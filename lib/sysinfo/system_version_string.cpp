#include "lib/sysinfo/system_version_string.h"

#include "lib/platform/guarded_call.h"
#include "lib/sysinfo/system_description.h"
#include "lib/sysinfo/system_facts.h"

namespace kelvo {

WString GetSystemVersionString() {
  SystemFacts facts;
  const bool asked = GuardedCall([&] { facts = AskSystemFacts(); });
  return asked ? DescribeSystem(facts) : WString(kDescriptionCutShort);
}

WString GetSystemVersionNumbers() {
  WString numbers;
  const bool completed = GuardedCall([&] {
    OSVERSIONINFOEXW version{};
    if (QueryVersionRecord(version) != VersionRecord::kNone) {
      numbers = FormatVersionNumbers(version);
    }
  });
  return completed && !numbers.empty() ? numbers : WString(L"0.0.0.0");
}

}  // namespace kelvo
