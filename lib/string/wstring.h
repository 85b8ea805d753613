#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

// A string of UTF-16 code units, always followed by a NUL. It is like std::wstring, except that a
// null pointer counts as an empty string and that its exceptions' messages do not depend on the
// standard library. It has only what the library itself needs: use std::wstring_view for everything
// else. With libstdc++, up to seven units are stored in the object itself. Positions and counts are
// in units. Operations are those of the standard:
//   - A start position past the end throws std::out_of_range "invalid string position".
//   - Growth beyond max_size() throws std::length_error "string too long". Constructing one from a
//     longer view throws with the standard library's own message.
//   - A count that reaches past the end is cut at the end.
//   - When memory runs out, std::bad_alloc is thrown, as by every operation of the library that
//     makes a string, unless its header says what it returns then.
//
// When an operation throws, the string is unchanged.
class WString {
 public:
  // Returned by a search that finds nothing: all bits set.
  static constexpr std::size_t npos = std::wstring::npos;

  WString() = default;
  // Copies a NUL-terminated string (null counts as empty), a view, or `count` times `unit`.
  // NOLINTNEXTLINE(google-explicit-constructor): literals are strings
  WString(const wchar_t* text) { AssignCString(text); }
  explicit WString(std::wstring_view text) : text_(text) {}
  WString(std::size_t count, wchar_t unit) { resize(count, unit); }

  // Copies a NUL-terminated string; null makes this one empty. `text` may point into this string.
  WString& AssignCString(const wchar_t* text);

  // Copies `count` units of `text` from `start` on. `text` may be this string.
  WString& assign(const WString& text, std::size_t start, std::size_t count = npos);

  // Appends `text`.
  WString& append(std::wstring_view text);
  WString& operator+=(const WString& text) { return append(text); }

  // Removes `count` units from `start` on.
  WString& erase(std::size_t start, std::size_t count = npos);

  // Shortens the string to `count` units, or extends it to `count` with `unit`.
  void resize(std::size_t count, wchar_t unit = L'\0');

  // Makes the string empty.
  void clear() { text_.clear(); }

  // Returns a copy of `count` units from `start` on.
  [[nodiscard]] WString substr(std::size_t start, std::size_t count = npos) const;

  // Finds the first occurrence at or after `start`. An empty string occurs at every position up to
  // the end.
  [[nodiscard]] std::size_t find(std::wstring_view text, std::size_t start = 0) const {
    return text_.find(text, start);
  }
  // Finds the last occurrence that begins at or before `start`, which may be past the end.
  [[nodiscard]] std::size_t rfind(std::wstring_view text, std::size_t start = npos) const {
    return text_.rfind(text, start);
  }

  // Iterators over the units.
  [[nodiscard]] auto begin() const { return text_.begin(); }
  [[nodiscard]] auto end() const { return text_.end(); }

  // Returns the unit at a position; the NUL at the position length().
  [[nodiscard]] wchar_t operator[](std::size_t position) const { return text_[position]; }

  // Return the number of units, without the NUL; the largest possible number; whether it is 0.
  [[nodiscard]] std::size_t size() const { return text_.size(); }
  [[nodiscard]] std::size_t length() const { return text_.length(); }
  [[nodiscard]] std::size_t max_size() const { return text_.max_size(); }
  [[nodiscard]] bool empty() const { return text_.empty(); }

  // Returns the units, followed by a NUL.
  [[nodiscard]] const wchar_t* c_str() const { return text_.c_str(); }
  // Points to length() writable units, followed by a NUL that must not be changed.
  [[nodiscard]] wchar_t* data() { return text_.data(); }
  [[nodiscard]] const wchar_t* data() const { return text_.data(); }

  // A view of the whole string.
  // NOLINTNEXTLINE(google-explicit-constructor): a view of the whole string loses nothing
  operator std::wstring_view() const { return text_; }

  // Compare unit by unit; concatenate.
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
