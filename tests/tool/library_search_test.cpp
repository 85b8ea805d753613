#include "tool/library_search.h"

#include "tests/support/testing.h"
#include "tool/driver_interface.h"

TEST_CASE("NarrowLibrarySearch: only program and system folders, or at least not the current one") {
  static DWORD directories;
  static BOOL isSupported;
  const auto set = +[](DWORD given) { return directories = given, isSupported; };
  struct Row {
    decltype(set) function;
    BOOL isSupported;
    DWORD directories;
    bool isCurrentFolderTakenOut;
  };
  for (const Row& row :
       {Row{set, TRUE, 0xA00, false}, Row{set, FALSE, 0xA00, true}, Row{nullptr, FALSE, 0, true}}) {
    directories = 0;
    isSupported = row.isSupported;
    bool isTakenOut = false;
    const ReplacedExport replaced("SetDefaultDllDirectories", row.function);
    REPLACE(SetDllDirectoryW,
            [&](auto, LPCWSTR path) { return isTakenOut = path == std::wstring(), TRUE; });
    NarrowLibrarySearch();
    CHECK_BOTH(directories == row.directories, isTakenOut == row.isCurrentFolderTakenOut);
  }
}

TEST_CASE("BindDriverInterface: loads the library by full path, from the program's folder first") {
  const ScratchFolder folder;
  std::wstring asked;
  bool isPathKnown = true;
  REPLACE(GetModuleFileNameW, [&](auto, auto, auto to, DWORD size) {
    if (!isPathKnown) {
      return DWORD{0};
    }
    lstrcpynW(to, (folder / L"sorrel.exe").c_str(), static_cast<int>(size));
    return static_cast<DWORD>(lstrlenW(to));
  });
  REPLACE(GetSystemDirectoryW, [](auto, auto to, UINT) -> UINT {
    return static_cast<UINT>(lstrlenW(lstrcpyW(to, L"S:\\system")));
  });
  REPLACE(LoadLibraryW, [&](auto, LPCWSTR name) {
    return asked = name, SetLastError(ERROR_BAD_EXE_FORMAT), nullptr;
  });
  // Freeing memory may change the last error.
  REPLACE(free, [](auto original, void* memory) {
    original(memory);
    SetLastError(ERROR_GEN_FAILURE);
  });
  DriverInterface driver;
  CHECK(BindDriverInterface(driver) == ERROR_BAD_EXE_FORMAT);
  CHECK(asked == L"S:\\system\\difxapi.dll");
  const std::wstring ownCopy = folder.Write("difxapi.dll", "");
  BindDriverInterface(driver);
  CHECK(asked == ownCopy);
  // If the program's folder is unknown, the current folder must not be searched instead.
  std::filesystem::current_path(folder.path);
  isPathKnown = false;
  BindDriverInterface(driver);
  CHECK(asked == L"S:\\system\\difxapi.dll");
  std::filesystem::current_path(folder.path.parent_path());
}
