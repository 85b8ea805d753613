#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace kelvo::fuzz {

// If `holds` is false, prints `what` and how to repeat the failure, and ends the program.
void Expect(bool holds, const char* what);

// Makes random choices. The same seed always gives the same choices.
class Input {
 public:
  explicit Input(std::uint64_t seed) : engine_(seed) {}

  // Returns a number from 0 to `most`. Returns 0 and `most` more often than other numbers.
  std::size_t Number(std::size_t most) {
    const std::uint64_t drawn = engine_();
    if (drawn % 8 == 0) {
      return drawn % 16 == 0 ? 0 : most;
    }
    return static_cast<std::size_t>((drawn >> 8) % (most + 1));
  }

  bool Chance() { return Number(1) == 1; }

  // Returns 0 to `most` UTF-16 units: from `alphabet`, or any if `alphabet` is empty.
  std::wstring Text(std::size_t most, const std::wstring& alphabet = L"") {
    std::wstring text(Number(most), L'\0');
    for (wchar_t& unit : text) {
      unit = alphabet.empty() ? static_cast<wchar_t>(Number(0xFFFF))
                              : alphabet[Number(alphabet.length() - 1)];
    }
    return text;
  }

 private:
  std::mt19937_64 engine_;
};

// Memory of at most 0x10000 bytes with an inaccessible page directly after its last byte or, if
// `atStart` is true, directly before its first byte.
class GuardedMemory {
 public:
  GuardedMemory(std::size_t size, bool atStart)
      : size_(size), block_(TakeBlock()), data_(block_ + (atStart ? 0 : kRoom - size)) {
    Expect(size <= kRoom, "guarded memory is large enough");
  }
  template <typename Content>
  GuardedMemory(const std::basic_string<Content>& content, bool atStart)
      : GuardedMemory(content.size() * sizeof(Content), atStart) {
    std::memcpy(data_, content.data(), size_);
  }
  GuardedMemory(const GuardedMemory&) = delete;
  ~GuardedMemory() {
    std::memset(data_, kFiller, size_);
    freeBlocks.push_back(block_);
  }

  template <typename Content>
  Content* As() const {
    return reinterpret_cast<Content*>(data_);
  }

 private:
  static constexpr std::size_t kPage = 0x1000;
  static constexpr std::size_t kRoom = 0x10000;  // the size of a block
  // Fills the unused part of a block. A zero there could hide that a string has no terminator.
  static constexpr int kFiller = 0xA5;
  // Blocks are reused: allocating a new block takes longer than most runs of a target.
  static inline std::vector<BYTE*> freeBlocks;

  static BYTE* TakeBlock() {
    if (!freeBlocks.empty()) {
      BYTE* const block = freeBlocks.back();
      freeBlocks.pop_back();
      return block;
    }
    auto* const reserved =
        static_cast<BYTE*>(VirtualAlloc(nullptr, kRoom + (2 * kPage), MEM_RESERVE, PAGE_NOACCESS));
    void* const block = VirtualAlloc(reserved + kPage, kRoom, MEM_COMMIT, PAGE_READWRITE);
    return static_cast<BYTE*>(std::memset(block, kFiller, kRoom));
  }

  std::size_t size_;
  BYTE* block_;
  BYTE* data_;
};

// A NUL-terminated string in guarded memory.
struct GuardedText : GuardedMemory {
  GuardedText(const std::wstring& text, bool atStart) : GuardedMemory(text + L'\0', atStart) {}
  operator const wchar_t*() const { return As<wchar_t>(); }
};

// A fuzz target: an operation that is tried on random input. `all` lists the targets.
struct Target {
  Target(const char* itsName, void (*itsRun)(Input&)) : name(itsName), run(itsRun) {
    all.push_back(this);
  }

  static inline std::vector<const Target*> all;
  const char* name;
  void (*run)(Input& input);
};

}  // namespace kelvo::fuzz
