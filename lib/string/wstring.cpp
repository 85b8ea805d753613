#include "lib/string/wstring.h"

#include <stdexcept>

namespace kelvo {

namespace {

void RequirePosition(std::size_t start, std::size_t length) {
  if (start > length) {
    throw std::out_of_range("invalid string position");
  }
}

void RequireRoom(std::size_t extra, std::size_t room) {
  if (extra > room) {
    throw std::length_error("string too long");
  }
}

}  // namespace

WString& WString::AssignCString(const wchar_t* text) {
  if (text == nullptr) {
    text_.clear();
  } else {
    text_.assign(text);
  }
  return *this;
}

WString& WString::assign(const WString& text, std::size_t start, std::size_t count) {
  RequirePosition(start, text.length());
  text_.assign(text.text_, start, count);
  return *this;
}

WString& WString::append(std::wstring_view text) {
  RequireRoom(text.length(), max_size() - length());
  text_.append(text);
  return *this;
}

WString& WString::erase(std::size_t start, std::size_t count) {
  RequirePosition(start, length());
  text_.erase(start, count);
  return *this;
}

void WString::resize(std::size_t count, wchar_t unit) {
  RequireRoom(count, max_size());
  text_.resize(count, unit);
}

WString WString::substr(std::size_t start, std::size_t count) const {
  WString part;
  part.assign(*this, start, count);
  return part;
}

}  // namespace kelvo
