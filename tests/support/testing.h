#pragma once

// Includes the headers that nearly all tests use.

#include <windows.h>

#include <doctest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "lib/string/wstring.h"
#include "tests/support/child_process.h"
#include "tests/support/files.h"
#include "tests/support/pretended_windows.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

// Checks two related conditions. A failure shows which of them is false.
#define CHECK_BOTH(first, second) \
  CHECK(first);                   \
  CHECK(second)

// Makes doctest show a wide string in the message of a failed check.
template <>
struct doctest::StringMaker<std::wstring> {
  static doctest::String convert(const std::wstring& text) {
    std::string shown(text.length() * 3, '\0');
    shown.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.length()), shown.data(),
                            static_cast<int>(shown.length()), nullptr, nullptr)));
    return ("\"" + shown + "\"").c_str();
  }
};

template <>
struct doctest::StringMaker<kelvo::WString> {
  static doctest::String convert(const kelvo::WString& text) {
    return StringMaker<std::wstring>::convert(std::wstring(std::wstring_view(text)));
  }
};

// Test files use both namespaces.
using namespace kelvo;
using namespace kelvo::test;
