#include "tests/support/scratch_key.h"

#include <windows.h>

#include "lib/string/format_text.h"

namespace kelvo::test {

ScratchKey::ScratchKey() : path_(FormatText(L"Software\\kelvo test %u", GetCurrentProcessId())) {}

// Not RegistryDeleteKeyTree, which is under test.
ScratchKey::~ScratchKey() { RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str()); }

}  // namespace kelvo::test
