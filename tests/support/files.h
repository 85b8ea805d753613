#pragma once

#include <windows.h>

#include <doctest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/ascii.h"

namespace kelvo::test {

// A new folder, deleted with all its contents when this object is destroyed.
struct ScratchFolder {
  // Skips existing folders, because other tests are using them or left them behind in a crash.
  ScratchFolder() {
    do {
      path = std::filesystem::temp_directory_path() / (L"kelvo test " + std::to_wstring(++made));
    } while (!std::filesystem::create_directory(path));
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  std::filesystem::path operator/(const std::filesystem::path& name) const { return path / name; }

  // Writes a file and returns the file's path.
  std::wstring Write(const std::filesystem::path& name, const std::string& bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
    return path / name;
  }

  static inline int made = 0;
  std::filesystem::path path;
};

// Returns the file's bytes, or an empty string on failure.
inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// Returns the path of `name` in this program's folder, which has all programs and test data.
inline std::wstring ProgramPath(const std::wstring& name) {
  std::wstring self(32768, L'\0');
  GetModuleFileNameW(nullptr, self.data(), 32768);
  return std::filesystem::path(self.c_str()).replace_filename(name);
}

// Checks that `seen` has the same bytes as `file`, which CMakeLists.txt lists under EXPECTED. On
// failure, shows the first difference and writes `seen` to the path of `file` plus ".seen".
inline void CheckAgainstFile(const std::string& seen, const std::wstring& file) {
  const std::wstring path = ProgramPath(L"expected\\" + file);
  const std::string expected = ReadBytes(path);
  REQUIRE_FALSE(expected.empty());
  const auto same = std::mismatch(seen.begin(), seen.end(), expected.begin(), expected.end());
  const auto from = static_cast<std::size_t>(std::max(same.first - seen.begin() - 100, 0LL));
  if (seen != expected) {
    std::ofstream(std::filesystem::path(path + L".seen"), std::ios::binary) << seen;
  }
  CHECK(seen.substr(from, 300) == expected.substr(from, 300));
}

}  // namespace kelvo::test
