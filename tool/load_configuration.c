// Defines the load configuration structure of a shipped program. With this structure, Windows 10
// version 1607 and later load the DLLs in the program's import table only from the system
// directory. NarrowLibrarySearch (tool/library_search.h), which wmain calls, comes too late for
// these DLLs: Windows loads them before wmain starts. A build with MSVC or clang-cl leaves out this
// file, because the linker option /DEPENDENTLOADFLAG has the same effect.

#include <windows.h>

// The start of IMAGE_LOAD_CONFIG_DIRECTORY64, which older mingw-w64 headers declare without
// DependentLoadFlags.
struct LoadConfiguration {
  DWORD size;
  BYTE before[74];
  WORD dependentLoadFlags;
  BYTE after[32];
};

// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-*): the linker finds the structure by this name
_Alignas(8) const struct LoadConfiguration _load_config_used = {
    sizeof(struct LoadConfiguration), {0}, LOAD_LIBRARY_SEARCH_SYSTEM32, {0}};
