#include "tests/support/scratch_folder.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>

namespace kelvo::test {

ScratchFolder::ScratchFolder() {
  static int made = 0;
  path_ =
      std::filesystem::temp_directory_path() /
      (L"kelvo test " + std::to_wstring(GetCurrentProcessId()) + L" " + std::to_wstring(++made));
  std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path ScratchFolder::Write(const std::filesystem::path& name,
                                           std::string_view bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
  return path_ / name;
}

OwnedFile CreateInheritableFile(const std::filesystem::path& file) {
  SECURITY_ATTRIBUTES inheritable{sizeof(inheritable), nullptr, TRUE};
  return OwnedFile(CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable,
                               CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace kelvo::test
