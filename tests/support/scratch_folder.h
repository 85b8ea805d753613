#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kelvo::test {

// A folder of this test's own, which goes with everything in it when this object goes.
class ScratchFolder {
 public:
  ScratchFolder() { std::filesystem::create_directories(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

  // Writes a file into the folder and returns its path.
  std::wstring Write(const std::filesystem::path& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return path_ / name;
  }

 private:
  static inline int made = 0;
  std::filesystem::path path_ =
      std::filesystem::temp_directory_path() /
      (L"kelvo test " + std::to_wstring(GetCurrentProcessId()) + L" " + std::to_wstring(++made));
};

// The file's bytes; empty when it cannot be read.
inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace kelvo::test
