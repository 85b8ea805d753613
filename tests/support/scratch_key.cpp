#include "tests/support/scratch_key.h"

#include <stdexcept>

#include "lib/string/format_text.h"

namespace kelvo::test {

ScratchKey::ScratchKey() {
  static int made = 0;
  path_ = FormatText(L"Software\\kelvo test %u %d", GetCurrentProcessId(), ++made);
}

// Not RegistryDeleteKeyTree, which is under test.
ScratchKey::~ScratchKey() { RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str()); }

StandInKey::StandInKey(HKEY predefined) : predefined_(predefined) {
  OwnedRegistryKey key;
  if (CreateRegistryKey(HKEY_CURRENT_USER, scratch_.Path(), key) != ERROR_SUCCESS ||
      RegOverridePredefKey(predefined, key.get()) != ERROR_SUCCESS) {
    throw std::runtime_error("no key to stand in for a predefined one");
  }
}

StandInKey::~StandInKey() { RegOverridePredefKey(predefined_, nullptr); }

}  // namespace kelvo::test
