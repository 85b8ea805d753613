#include "lib/paths/internal/trailing_backslash.h"

#include <cwchar>

namespace kelvo::internal {

bool EnsureTrailingBackslash(std::span<wchar_t> buffer) {
  const std::size_t length = std::wcslen(buffer.data());
  if (length > 0 && buffer[length - 1] == L'\\') {
    return true;
  }
  if (length + 1 >= buffer.size()) {
    return false;
  }
  buffer[length] = L'\\';
  buffer[length + 1] = L'\0';
  return true;
}

}  // namespace kelvo::internal
