#include "torture/input.h"

#include <algorithm>
#include <map>

namespace kelvo::torture {

namespace {

constexpr std::size_t kPage = 0x1000;

// Blocks between two pages without access, by their size: reserving one takes longer than most
// inputs do.
std::map<std::size_t, std::vector<BYTE*>> freeBlocks;

BYTE* TakeBlock(std::size_t room) {
  auto& blocks = freeBlocks[room];
  if (!blocks.empty()) {
    BYTE* const block = blocks.back();
    blocks.pop_back();
    return block;
  }
  auto* const reserved =
      static_cast<BYTE*>(VirtualAlloc(nullptr, room + (2 * kPage), MEM_RESERVE, PAGE_NOACCESS));
  return static_cast<BYTE*>(VirtualAlloc(reserved + kPage, room, MEM_COMMIT, PAGE_READWRITE));
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

std::string Input::Bytes(std::size_t most) {
  std::string bytes(Number(most), '\0');
  std::ranges::generate(bytes, [&] { return static_cast<char>(Number(0xFF)); });
  return bytes;
}

void Input::Mutate(std::string& bytes) {
  for (std::size_t left = Number(6); left > 0 && !bytes.empty(); --left) {
    bytes[Number(bytes.size() - 1)] = static_cast<char>(Number(0xFF));
  }
  if (Number(7) == 1) {
    bytes.resize(Number(bytes.size()));
  }
}

GuardedMemory::GuardedMemory(std::size_t size, bool atStart)
    : room_((size + kPage) / kPage * kPage),
      block_(TakeBlock(room_)),
      data_(block_ + (atStart ? 0 : room_ - size)) {
  // What lies beside it within its own pages is no zero that might end a text.
  std::memset(block_, 0xA5, room_);
}

GuardedMemory::~GuardedMemory() { freeBlocks[room_].push_back(block_); }

}  // namespace kelvo::torture
