#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

namespace {

constexpr std::size_t kPage = 0x1000;
constexpr std::size_t kRoom = 0x10000;
// Fills what surrounds guarded memory in its block: no zero that might end a string.
constexpr int kFiller = 0xA5;

// Used again, since reserving one takes longer than most inputs do.
std::vector<BYTE*> freeBlocks;

BYTE* TakeBlock() {
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

}  // namespace

std::size_t Input::Number(std::size_t most) {
  const std::uint64_t drawn = engine_();
  if (drawn % 8 == 0) {
    return drawn % 16 == 0 ? 0 : most;
  }
  return static_cast<std::size_t>((drawn >> 8) % (most + 1));
}

std::wstring Input::Text(std::size_t most, const std::wstring& alphabet) {
  std::wstring text(Number(most), L'\0');
  for (wchar_t& unit : text) {
    unit = alphabet.empty() ? static_cast<wchar_t>(Number(0xFFFF))
                            : alphabet[Number(alphabet.length() - 1)];
  }
  return text;
}

std::wstring Input::Word(std::size_t most, const std::wstring& alphabet) {
  std::wstring text = Text(most, alphabet);
  std::erase(text, L'\0');
  return text;
}

GuardedMemory::GuardedMemory(std::size_t size, bool atStart)
    : size_(size), block_(TakeBlock()), data_(block_ + (atStart ? 0 : kRoom - size)) {
  Expect(size <= kRoom, "guarded memory is large enough");
}

GuardedMemory::~GuardedMemory() {
  std::memset(data_, kFiller, size_);
  freeBlocks.push_back(block_);
}

}  // namespace kelvo::fuzz
