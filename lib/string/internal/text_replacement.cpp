#include "lib/string/internal/text_replacement.h"

namespace kelvo::internal {

std::size_t WriteReplaced(std::wstring_view text, std::wstring_view search,
                          std::wstring_view replacement, std::span<wchar_t> out) {
  std::size_t written = 0;
  const auto write = [&](std::wstring_view part) {
    written += part.copy(out.data() + written, out.size() - written);
  };
  std::size_t copied = 0;
  for (std::size_t hit = text.find(search); hit != std::wstring_view::npos && written < out.size();
       hit = text.find(search, copied)) {
    write(text.substr(copied, hit - copied));
    write(replacement);
    copied = hit + search.length();
  }
  write(text.substr(copied));
  return written;
}

}  // namespace kelvo::internal
