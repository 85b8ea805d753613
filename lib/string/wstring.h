#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

// A text of UTF-16 units, always followed by a NUL: std::wstring with a null pointer as an empty
// text and with failure texts that do not depend on the standard library. Up to seven units are
// stored in the object itself. Positions and counts are in units. Operations are the standard ones:
//   - a start position beyond the end throws std::out_of_range "invalid string position";
//   - growth beyond max_size() throws std::length_error "string too long";
//   - a count that reaches past the end is cut at the end;
//   - memory exhaustion throws std::bad_alloc.
// When an operation throws, the text is unchanged.
class WString {
 public:
  // What a failed search gives: all bits set.
  static constexpr std::size_t npos = std::wstring::npos;

  WString() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): literals are texts
  WString(const wchar_t* text) { AssignCString(text); }
  explicit WString(std::wstring_view text) : text_(text) {}
  WString(std::size_t count, wchar_t unit) { resize(count, unit); }

  // Takes over a NUL-terminated text; null empties. The pointer may point into this text.
  WString& AssignCString(const wchar_t* text);

  // Takes over `count` units of `text` from `start`. `text` may be this text.
  WString& assign(const WString& text, std::size_t start, std::size_t count = npos);
  WString& append(std::wstring_view text);
  WString& operator+=(const WString& text) { return append(text); }
  WString& erase(std::size_t start, std::size_t count = npos);
  // Cuts at `count` units or fills up to them with `unit`.
  void resize(std::size_t count, wchar_t unit = L'\0');
  void clear() { text_.clear(); }

  [[nodiscard]] WString substr(std::size_t start, std::size_t count = npos) const;

  // The first occurrence at or after `start`. An empty text occurs at every position not past the
  // end.
  [[nodiscard]] std::size_t find(std::wstring_view text, std::size_t start = 0) const {
    return text_.find(text, start);
  }
  // The last occurrence that begins at or before `start`; a start past the end counts as the end.
  [[nodiscard]] std::size_t rfind(std::wstring_view text, std::size_t start = npos) const {
    return text_.rfind(text, start);
  }

  [[nodiscard]] std::size_t length() const { return text_.length(); }
  [[nodiscard]] std::size_t max_size() const { return text_.max_size(); }
  [[nodiscard]] bool empty() const { return text_.empty(); }
  [[nodiscard]] const wchar_t* c_str() const { return text_.c_str(); }
  // length() units that may be written, then the NUL, which may not.
  [[nodiscard]] wchar_t* data() { return text_.data(); }

  // NOLINTNEXTLINE(google-explicit-constructor): a view of the whole text loses nothing
  operator std::wstring_view() const { return text_; }

  friend bool operator==(const WString&, const WString&) = default;
  friend auto operator<=>(const WString&, const WString&) = default;
  friend WString operator+(WString left, const WString& right) {
    left += right;
    return left;
  }

 private:
  std::wstring text_;
};

}  // namespace kelvo
