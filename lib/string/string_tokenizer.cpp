#include "lib/string/string_tokenizer.h"

#include <string_view>
#include <utility>

namespace kelvo {

StringTokenizer::StringTokenizer(WString text, WString delimiter, bool collapse)
    : text_(std::move(text)), delimiter_(std::move(delimiter)) {
  if (!collapse) {
    return;
  }
  CollapseRuns();
  if (std::wstring_view(text_).starts_with(delimiter_)) {
    text_.erase(0, delimiter_.length());
  }
  if (std::wstring_view(text_).ends_with(delimiter_)) {
    text_.erase(text_.length() - delimiter_.length());
  }
}

void StringTokenizer::CollapseRuns() {
  const std::wstring_view text = text_;
  WString collapsed;
  std::size_t copied = 0;
  for (std::size_t hit = text.find(delimiter_); hit != WString::npos;
       hit = text.find(delimiter_, copied)) {
    std::size_t end = hit + delimiter_.length();
    collapsed.append(text.substr(copied, end - copied));
    while (text.substr(end).starts_with(delimiter_)) {
      end += delimiter_.length();
    }
    copied = end;
  }
  collapsed.append(text.substr(copied));
  text_ = std::move(collapsed);
}

WString StringTokenizer::NextToken() {
  const std::size_t start = next_;
  const std::size_t end = text_.find(delimiter_, start);
  if (end == WString::npos) {
    next_ = text_.length();
    return text_.substr(start);
  }
  next_ = end + delimiter_.length();
  return text_.substr(start, end - start);
}

}  // namespace kelvo
