#pragma once

#include <algorithm>
#include <catch.hpp>

#include "tests/support/child_process.h"

namespace kelvo::test {

// Compares what was seen with a file that the test lists under EXPECTED, byte by byte, and shows
// where they differ first. What was seen then stands beside that file's copy as FILE.seen.
inline void CheckAgainstFile(const std::string& seen, const std::wstring& file) {
  const std::wstring path = ProgramPath(L"expected\\" + file);
  const std::string expected = ReadBytes(path);
  const auto same = std::mismatch(seen.begin(), seen.end(), expected.begin(), expected.end());
  const auto from = static_cast<std::size_t>(std::max(same.first - seen.begin() - 100, 0LL));
  if (seen != expected) {
    std::ofstream(std::filesystem::path(path + L".seen"), std::ios::binary) << seen;
  }
  CHECK(seen.substr(from, 300) == expected.substr(from, 300));
}

}  // namespace kelvo::test
