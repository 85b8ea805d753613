#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace kelvo::fuzz {

// Random choices that a seed repeats.
class Input {
 public:
  explicit Input(std::uint64_t seed) : engine_(seed) {}

  // From 0 to `most`, the bounds more often than the rest.
  std::size_t Number(std::size_t most);
  bool Chance() { return Number(1) == 1; }
  // Up to `most` units, each one of `alphabet`, or any at all when that is empty.
  std::wstring Text(std::size_t most, const std::wstring& alphabet = L"");
  // Such a text without NUL.
  std::wstring Word(std::size_t most, const std::wstring& alphabet = L"");

 private:
  std::mt19937_64 engine_;
};

// Memory of `size` bytes, at most 0x10000, that ends where a page without access begins, or, when
// `atStart` is true, begins where one ends. One byte too far is a fault.
class GuardedMemory {
 public:
  GuardedMemory(std::size_t size, bool atStart);
  GuardedMemory(const GuardedMemory&) = delete;
  ~GuardedMemory();

  template <typename Content>
  GuardedMemory(const std::basic_string<Content>& content, bool atStart)
      : GuardedMemory(content.size() * sizeof(Content), atStart) {
    std::memcpy(data_, content.data(), size_);
  }

  template <typename Content>
  Content* As() const {
    return reinterpret_cast<Content*>(data_);
  }

 private:
  std::size_t size_;
  BYTE* block_;
  BYTE* data_;
};

// A NUL-terminated string in such memory.
struct GuardedText : GuardedMemory {
  GuardedText(const std::wstring& text, bool atStart) : GuardedMemory(text + L'\0', atStart) {}
  operator const wchar_t*() const { return As<wchar_t>(); }
};

// Ends the program, and prints how to repeat the input, when `holds` is false.
void Expect(bool holds, const char* what);

// Something that random input is tried on. Each file defines its own.
struct Target {
  Target(const char* itsName, void (*itsRun)(Input&)) : name(itsName), run(itsRun) {
    all.push_back(this);
  }

  static inline std::vector<const Target*> all;
  const char* name;
  void (*run)(Input& input);
};

}  // namespace kelvo::fuzz
