// Lets the library read registry values of many types and sizes.

#include "lib/registry/registry_binary.h"
#include "lib/registry/registry_number.h"
#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value_list.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

constexpr const wchar_t* kKey = L"Software\\kelvo fuzz";
constexpr const wchar_t* kName = L"value";

// Returns the text that the library should read: the data up to the first NUL. If the number of
// bytes is odd, the last byte becomes one more UTF-16 unit.
static std::wstring TextIn(const std::string& data) {
  std::wstring text((data.size() + 1) / 2, L'\0');
  std::memcpy(text.data(), data.data(), data.size());
  return text.substr(0, text.find(L'\0'));
}

static std::string AnyData(Input& input) {
  const std::wstring text = input.Text(input.Chance() ? 5 : 1050, input.Chance() ? L"ab" : L"");
  return {reinterpret_cast<const char*>(text.c_str()), (text.length() * 2) + input.Number(2)};
}

struct Key {
  ~Key() { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }
};

static const Target kRegistryValues("registry values", [](Input& input) {
  constexpr DWORD kTypes[] = {REG_SZ,     REG_EXPAND_SZ, REG_SZ,   REG_DWORD,
                              REG_BINARY, REG_MULTI_SZ,  REG_NONE, 77};
  static const Key removedAtTheEnd;
  const DWORD type = kTypes[input.Number(7)];
  const std::string data = AnyData(input);
  // Puts "##" after the data, because Windows would also store a NUL that follows the data.
  RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, type, (data + "##").data(),
                  static_cast<DWORD>(data.size()));

  const std::wstring text = TextIn(data);
  const bool isText = type == REG_SZ || type == REG_EXPAND_SZ;
  const bool isExpanded = type == REG_EXPAND_SZ && text.find(L'%') != std::wstring::npos;
  const WString read = RegistryReadString(HKEY_CURRENT_USER, kKey, kName, L"default");
  const bool fits = isText && data.size() <= 2048;
  // Does not check a REG_EXPAND_SZ text that has a "%" or may be too long to be expanded.
  if (!isExpanded && (type != REG_EXPAND_SZ || text.length() < 259)) {
    Expect(std::wstring_view(read) == (fits ? text : L"default"), "stored text or default is read");
  }
  // In half of the runs, the buffer has exactly as many whole UTF-16 units as the value.
  const std::size_t length = input.Chance() ? input.Number(1100) : data.size() / 2;
  // For a 1-byte value, Wine reads memory before the buffer, so the guard page is after the buffer.
  const GuardedMemory buffer(std::wstring(length, L'x'), data.size() != 1 && input.Chance());
  const std::size_t stays =
      RegistryReadStoredString(HKEY_CURRENT_USER, kKey, kName, buffer.As<wchar_t>(), length);
  Expect(length == 0 || stays < length, "the text ends within the buffer");
  if (isText && length != 0 && data.size() <= length * 2) {
    Expect(std::wstring(buffer.As<wchar_t>()) == text.substr(0, length - 1),
           "the buffer has the text");
  }
  RegistryReadStringBuffer(HKEY_CURRENT_USER, kKey, kName, buffer.As<wchar_t>(), length);

  std::string bytes = "untouched";
  RegistryReadBinary(HKEY_CURRENT_USER, kKey, kName, bytes);
  Expect(bytes == (type == REG_BINARY && !data.empty() ? data : "untouched"),
         "the bytes are the stored or old bytes");
  RegistryReadDword(HKEY_CURRENT_USER, kKey, kName, 7);
  const NameTextList list = ReadRegistryKeyValues(HKEY_CURRENT_USER, kKey);
  Expect(list.size() == (isText || type == REG_DWORD ? 1 : 0), "only texts and numbers are listed");
});

}  // namespace kelvo::fuzz
