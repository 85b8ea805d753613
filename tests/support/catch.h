#pragma once

// Catch with texts of this library shown in failures. Compiled once, as the precompiled header of
// all tests.

#include <windows.h>

#include <catch.hpp>
#include <string>

#include "lib/string/wstring.h"

namespace Catch {

template <>
struct StringMaker<kelvo::WString> {
  static std::string convert(const kelvo::WString& text) {
    return StringMaker<std::wstring>::convert(std::wstring(std::wstring_view(text)));
  }
};

}  // namespace Catch
