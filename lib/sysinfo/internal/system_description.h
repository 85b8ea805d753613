#pragma once

#include "lib/string/wstring.h"
#include "lib/sysinfo/internal/system_facts.h"

namespace kelvo::internal {

// What ends a description that an exception cut short.
constexpr const wchar_t* kDescriptionCutShort =
    L"catch(unhandled exception) while querying system version";

// The line that GetSystemVersionString shows for a Windows of which these are the facts. Where an
// answer that it needs was cut short, the line ends there with kDescriptionCutShort; the metrics of
// NT 5.1 and 5.2 are replaced by a text of their own and the line goes on.
WString DescribeSystem(const SystemFacts& facts);

// "(major.minor.build)", with the low 16 bits of the build number.
WString FormatVersionNumbers(const OSVERSIONINFOEXW& version);

}  // namespace kelvo::internal
