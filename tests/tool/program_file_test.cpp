#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/scratch_folder.h"

namespace kelvo::test {

namespace {

// Reads the file by its section table, so that nothing of it is loaded.
class ProgramFile {
 public:
  explicit ProgramFile(const std::wstring& path) : bytes_(ReadBytes(path)) {}

  [[nodiscard]] std::set<std::string> Imports() const {
    std::set<std::string> names;
    for (const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(Directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
         library->Name != 0; ++library) {
      names.insert(LowerCase(At<char>(library->Name)));
    }
    for (const auto* library =
             At<IMAGE_DELAYLOAD_DESCRIPTOR>(Directory(IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT));
         library->DllNameRVA != 0; ++library) {
      names.insert("late " + LowerCase(At<char>(library->DllNameRVA)));
    }
    return names;
  }

 private:
  [[nodiscard]] const IMAGE_NT_HEADERS* Headers() const {
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(bytes_.data());
    return reinterpret_cast<const IMAGE_NT_HEADERS*>(bytes_.data() + dos->e_lfanew);
  }
  [[nodiscard]] DWORD Directory(int entry) const {
    return Headers()->OptionalHeader.DataDirectory[entry].VirtualAddress;
  }
  template <typename Content>
  [[nodiscard]] const Content* At(DWORD address) const {
    const auto* section = IMAGE_FIRST_SECTION(Headers());
    while (address < section->VirtualAddress ||
           address >= section->VirtualAddress + section->SizeOfRawData) {
      ++section;
    }
    return reinterpret_cast<const Content*>(bytes_.data() + section->PointerToRawData + address -
                                            section->VirtualAddress);
  }
  static std::string LowerCase(std::string name) {
    std::ranges::transform(name, name.begin(), [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name;
  }

  std::string bytes_;
};

}  // namespace

TEST_CASE("the program needs no library that a bare Windows lacks, and loads crypt32 late") {
  const std::set<std::string> imports = ProgramFile(ProgramPath(L"sorrel.exe")).Imports();
  const std::set<std::string> expected = {"advapi32.dll", "kernel32.dll", "late crypt32.dll",
                                          "msvcrt.dll"};
  CHECK(imports == expected);
}

TEST_CASE("the program stays small") {
  CHECK(std::filesystem::file_size(ProgramPath(L"sorrel.exe")) <= 100 * 1024);
}

TEST_CASE("the program carries its manifest and says what it is") {
  HMODULE program = LoadLibraryExW(ProgramPath(L"sorrel.exe").c_str(), nullptr,
                                   LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  REQUIRE(program != nullptr);
  HRSRC resource = FindResourceW(program, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
  REQUIRE(resource != nullptr);
  const std::string manifest(
      static_cast<const char*>(LockResource(LoadResource(program, resource))),
      SizeofResource(program, resource));
  for (const char* const part : {"level=\"asInvoker\"", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}",
                                 "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {
    CHECK(manifest.find(part) != std::string::npos);
  }
  CHECK(FindResourceW(program, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)) != nullptr);
  FreeLibrary(program);
}

}  // namespace kelvo::test
