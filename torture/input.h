#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

// What a target of the torture is made of.
namespace kelvo::torture {

// Random choices that a seed repeats.
class Input {
 public:
  explicit Input(std::uint64_t seed) : engine_(seed) {}

  // From 0 to `most`, the bounds more often than the rest.
  std::size_t Number(std::size_t most);
  bool Chance() { return Number(1) == 1; }
  // Up to `most` units, each one of `alphabet`, or any at all when that is empty.
  std::wstring Text(std::size_t most, const std::wstring& alphabet = L"");
  std::string Bytes(std::size_t most);
  // Changes some bytes, and now and then the length.
  void Mutate(std::string& bytes);

 private:
  std::mt19937_64 engine_;
};

// Memory of exactly `size` bytes that ends where a page without access begins, or, when `atStart`
// is true, begins where one ends. One byte too far is a fault.
class GuardedMemory {
 public:
  GuardedMemory(std::size_t size, bool atStart);
  GuardedMemory(const GuardedMemory&) = delete;
  ~GuardedMemory();

  template <typename Content>
  GuardedMemory(const std::basic_string<Content>& content, bool atStart)
      : GuardedMemory(content.size() * sizeof(Content), atStart) {
    std::memcpy(data_, content.data(), content.size() * sizeof(Content));
  }

  template <typename Content>
  Content* As() const {
    return reinterpret_cast<Content*>(data_);
  }

 private:
  std::size_t room_;
  BYTE* block_;
  BYTE* data_;
};

// A NUL-terminated text in such memory.
struct GuardedText : GuardedMemory {
  GuardedText(const std::wstring& text, bool atStart) : GuardedMemory(text + L'\0', atStart) {}
  operator const wchar_t*() const { return As<wchar_t>(); }
};

// Ends the program with the input that brings the failure back when `holds` is false.
void Expect(bool holds, const char* what);

struct Target {
  const char* name;
  void (*run)(Input& input);
  // Libraries of Wine that fault there by themselves, on input that Windows allows.
  const char* faultyLibraries = "";
};

std::vector<Target> StringTargets();
std::vector<Target> RegistryTargets();
std::vector<Target> AccessListTargets();
std::vector<Target> FileTargets();
std::vector<Target> ProcessTargets();
std::vector<Target> StatusTargets();

}  // namespace kelvo::torture
