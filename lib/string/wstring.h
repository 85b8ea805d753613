#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

// A string of UTF-16 code units, always followed by a NUL. Unlike with std::wstring, a null pointer
// converts to an empty string. Do not pass a null pointer to append, find or rfind: they take a
// std::wstring_view. The class has only the operations that this library needs. For other
// operations, use std::wstring_view. With libstdc++, a string of up to seven units is stored in the
// object itself. Positions and counts are in units. Operations behave as in std::wstring:
//   - In assign, erase and substr, a start position past the end throws std::out_of_range. With
//     every standard library, the message is "invalid string position".
//   - Growth beyond max_size() throws std::length_error. In the constructor that takes a view, the
//     message depends on the standard library. In all other operations, the message is always
//     "string too long".
//   - In assign, erase and substr, a count that reaches past the end means all units up to the end.
//   - When memory runs out, std::bad_alloc is thrown. All other functions of this library that
//     create a string also throw std::bad_alloc when memory runs out, unless their header says what
//     they return in this case.
//
// When an operation throws, the string is unchanged.
class WString {
 public:
  // The result of a search that finds nothing: all bits set.
  static constexpr std::size_t npos = std::wstring::npos;

  WString() = default;
  // Copies a NUL-terminated string (null counts as empty) or a view, or makes a string that
  // consists of `count` copies of `unit`.
  // NOLINTNEXTLINE(google-explicit-constructor): string literals must convert implicitly
  WString(const wchar_t* text) { AssignCString(text); }
  explicit WString(std::wstring_view text) : text_(text) {}
  WString(std::size_t count, wchar_t unit) { resize(count, unit); }

  // Copies a NUL-terminated string. If `text` is null, makes this string empty. `text` may point
  // into this string.
  WString& AssignCString(const wchar_t* text);

  // Replaces the contents with `count` units of `text`, beginning with the unit at `start`. `text`
  // may be this string.
  WString& assign(const WString& text, std::size_t start, std::size_t count = npos);

  // Appends `text`.
  WString& append(std::wstring_view text);
  WString& operator+=(const WString& text) { return append(text); }

  // Removes `count` units, beginning with the unit at `start`.
  WString& erase(std::size_t start, std::size_t count = npos);

  // Shortens the string to `count` units, or appends `unit` until there are `count` units.
  void resize(std::size_t count, wchar_t unit = L'\0');

  // Makes the string empty.
  void clear() { text_.clear(); }

  // Returns a copy of `count` units, beginning with the unit at `start`.
  [[nodiscard]] WString substr(std::size_t start, std::size_t count = npos) const;

  // Finds the first occurrence of `text` at or after `start`. An empty `text` occurs at every
  // position up to the end.
  [[nodiscard]] std::size_t find(std::wstring_view text, std::size_t start = 0) const {
    return text_.find(text, start);
  }
  // Finds the last occurrence of `text` that begins at or before `start`. `start` may be past the
  // end.
  [[nodiscard]] std::size_t rfind(std::wstring_view text, std::size_t start = npos) const {
    return text_.rfind(text, start);
  }

  // Iterators over the units.
  [[nodiscard]] auto begin() const { return text_.begin(); }
  [[nodiscard]] auto end() const { return text_.end(); }

  // Returns the unit at `position`, or the NUL when `position` is length().
  [[nodiscard]] wchar_t operator[](std::size_t position) const { return text_[position]; }

  // size() and length() return the number of units, without the NUL; max_size() returns the largest
  // possible number of units; empty() returns whether size() is 0.
  [[nodiscard]] std::size_t size() const { return text_.size(); }
  [[nodiscard]] std::size_t length() const { return text_.length(); }
  [[nodiscard]] std::size_t max_size() const { return text_.max_size(); }
  [[nodiscard]] bool empty() const { return text_.empty(); }

  // Returns the units, followed by a NUL.
  [[nodiscard]] const wchar_t* c_str() const { return text_.c_str(); }
  // Returns a pointer to length() writable units, followed by a NUL that must not be changed.
  [[nodiscard]] wchar_t* data() { return text_.data(); }
  [[nodiscard]] const wchar_t* data() const { return text_.data(); }

  // Returns a view of the whole string.
  // NOLINTNEXTLINE(google-explicit-constructor): implicit, as in std::wstring
  operator std::wstring_view() const { return text_; }

  // The operators == and <=> compare unit by unit, and + concatenates.
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
