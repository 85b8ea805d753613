#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "lib/platform/owned.h"

namespace kelvo::test {

// A folder of this test's own, which goes with everything in it when this object goes.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  // Writes a file into the folder and returns its path.
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

// A new file that a child process inherits and that others may read.
OwnedFile CreateInheritableFile(const std::filesystem::path& file);

// The file's bytes; empty when it cannot be read.
std::string ReadBytes(const std::filesystem::path& file);

}  // namespace kelvo::test
