#pragma once

#include "lib/string/wstring.h"
#include "lib/sysinfo/internal/system_facts.h"

namespace kelvo::internal {

// Appends the name of a Windows of the NT line, with its edition, its suites and, from NT 5.2 on,
// the processor; nothing for a release after NT 6. What an exception left of the name stays in
// `text`: for NT 5.1 and 5.2 a replacement follows it, for NT 6 the exception goes through.
void AppendNtName(const SystemFacts& facts, WString& text);

}  // namespace kelvo::internal
