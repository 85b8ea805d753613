#include "lib/registry/registry_value_list.h"

#include <array>
#include <string_view>

#include "lib/registry/registry_key.h"

namespace kelvo {

namespace {

constexpr DWORD kBufferLength = 16383;

// Reads a key's values one by one into the same two buffers.
class ValueReader {
 public:
  explicit ValueReader(HKEY key) : key_(key) {}

  // Returns false when the value cannot be enumerated.
  bool Read(DWORD index) {
    nameLength_ = kBufferLength;
    size_ = kBufferLength * sizeof(wchar_t);
    name_.front() = L'\0';
    // Clears only the first character, to keep the data of earlier values in the rest of `data_`:
    // the string of a REG_DWORD value may continue with that data (see registry_value_list.h).
    data_.front() = L'\0';
    return RegEnumValueW(key_, index, name_.data(), &nameLength_, nullptr, &type_,
                         reinterpret_cast<BYTE*>(data_.data()), &size_) == ERROR_SUCCESS;
  }

  void AppendTo(NameTextList& list) const {
    switch (type_) {
      case REG_SZ:
        list.emplace_back(Name(), StoredText());
        break;
      case REG_EXPAND_SZ:
        list.emplace_back(Name(), ExpandedText());
        break;
      case REG_DWORD:
        list.emplace_back(Name(), WString(data_.data()));
        break;
      default:
        break;
    }
  }

 private:
  [[nodiscard]] WString Name() const {
    return WString(std::wstring_view(name_.data(), nameLength_));
  }

  // Returns the string in this value's data. The data may lack a NUL, or have an odd number of
  // bytes. Ignores the rest of the buffer, which may contain data of earlier values.
  [[nodiscard]] WString StoredText() const {
    WString text(std::wstring_view(data_.data(), (size_ + 1) / sizeof(wchar_t)));
    if (size_ % sizeof(wchar_t) != 0) {
      text.data()[text.length() - 1] &= 0xFF;
    }
    return {text.c_str()};
  }

  [[nodiscard]] WString ExpandedText() const {
    const WString stored = StoredText();
    std::array<wchar_t, MAX_PATH> expanded{};
    const DWORD needed = ExpandEnvironmentStringsW(stored.c_str(), expanded.data(), MAX_PATH);
    return needed == 0 || needed > MAX_PATH ? stored : WString(expanded.data());
  }

  HKEY key_;
  // Each buffer has one character more than RegEnumValueW may write, so that a NUL follows even the
  // longest string.
  std::vector<wchar_t> name_ = std::vector<wchar_t>(kBufferLength + 1);
  std::vector<wchar_t> data_ = std::vector<wchar_t>(kBufferLength + 1);
  DWORD nameLength_ = 0;
  DWORD size_ = 0;
  DWORD type_ = REG_NONE;
};

}  // namespace

NameTextList ReadRegistryKeyValues(HKEY root, const wchar_t* subkey) {
  NameTextList list;
  OwnedRegistryKey key;
  DWORD count = 0;
  if (OpenRegistryKey(root, subkey, KEY_READ, key) != ERROR_SUCCESS ||
      RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count,
                       nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
    return list;
  }
  ValueReader reader(key.get());
  for (DWORD index = 0; index < count; ++index) {
    if (reader.Read(index)) {
      reader.AppendTo(list);
    }
  }
  return list;
}

}  // namespace kelvo
