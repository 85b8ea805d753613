#pragma once

// What nearly all tests use. Compiled once, as the precompiled header of all of them.

#include <windows.h>

#include <algorithm>
#include <array>
#include <catch.hpp>
#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "lib/platform/owned.h"
#include "lib/string/wstring.h"
#include "tests/support/child_process.h"
#include "tests/support/expected_file.h"
#include "tests/support/pretended_windows.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/scratch_key.h"

namespace Catch {

template <>
struct StringMaker<kelvo::WString> {
  static std::string convert(const kelvo::WString& text) {
    return StringMaker<std::wstring>::convert(text.c_str());
  }
};

}  // namespace Catch

// Test files are about nothing else.
using namespace kelvo;
using namespace kelvo::test;
