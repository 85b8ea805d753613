#include <filesystem>
#include <fstream>

#include "tests/support/desktop_scope.h"

// Writes the names of its window station and desktop into the file that is its argument, and ends
// with 7.
int wmain(int count, wchar_t** arguments) {
  for (const wchar_t unit : kelvo::test::CurrentDesktop()) {
    std::ofstream(std::filesystem::path(arguments[count - 1]), std::ios::app)
        << static_cast<char>(unit);
  }
  return 7;
}
