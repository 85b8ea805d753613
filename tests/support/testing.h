#pragma once

// What nearly all tests use. Compiled once, as the precompiled header of all of them.

#include <windows.h>

#include <algorithm>
#include <array>
#include <catch.hpp>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "lib/string/wstring.h"
#include "tests/support/child_process.h"
#include "tests/support/files.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

inline std::ostream& operator<<(std::ostream& out, const WString& text) {
  return out << Catch::Detail::stringify(std::wstring(text.c_str()));
}

}  // namespace kelvo

// Test files are about nothing else.
using namespace kelvo;
using namespace kelvo::test;
