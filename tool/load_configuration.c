// The load configuration of a program that is shipped: Windows 10 1607 and later load the libraries
// that it imports from the system directory alone. One planted in the program's folder is too early
// for NarrowLibrarySearch, which runs in wmain. Visual Studio's linker writes this by itself.

#include <windows.h>

// The layout of IMAGE_LOAD_CONFIG_DIRECTORY64, which older mingw-w64 headers declare without these flags.
struct LoadConfiguration {
  DWORD size;
  BYTE before[74];
  WORD dependentLoadFlags;
  BYTE after[32];
};

// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-*): the linker finds it by this name
_Alignas(8) const struct LoadConfiguration _load_config_used = {
    sizeof(struct LoadConfiguration), {0}, LOAD_LIBRARY_SEARCH_SYSTEM32, {0}};
