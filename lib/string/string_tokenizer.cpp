#include "lib/string/string_tokenizer.h"

#include <string_view>
#include <utility>

namespace kelvo {

StringTokenizer::StringTokenizer(WString text, WString delimiter, bool collapse)
    : text_(std::move(text)), delimiter_(std::move(delimiter)) {
  if (!collapse) {
    return;
  }
  if (delimiter_.length() == 1) {
    skipsRuns_ = true;
    const std::size_t last = std::wstring_view(text_).find_last_not_of(delimiter_);
    text_.resize(last + 1);
    SkipRun();
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

void StringTokenizer::SkipRun() {
  const std::wstring_view text = text_;
  while (next_ < text.length() && text[next_] == delimiter_[0]) {
    ++next_;
  }
}

WString StringTokenizer::NextToken() {
  const std::wstring_view text = text_;
  const std::size_t start = next_;
  // Searching for a wchar_t is faster than searching for a string of one wchar_t.
  const std::size_t end =
      delimiter_.length() == 1 ? text.find(delimiter_[0], start) : text.find(delimiter_, start);
  if (end == std::wstring_view::npos) {
    next_ = text.length();
  } else {
    next_ = end + delimiter_.length();
    if (skipsRuns_) {
      SkipRun();
    }
  }
  return WString(text.substr(start, end - start));
}

}  // namespace kelvo
