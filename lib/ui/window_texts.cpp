#include "lib/ui/window_texts.h"

#include <array>
#include <cwchar>
#include <new>

#include "lib/ui/text_substitution.h"

namespace kelvo {

namespace {

void RewriteWindowText(HWND window) {
  constexpr int kCapacity = 1023;
  std::array<wchar_t, kCapacity + 1> text{};
  GetWindowTextW(window, text.data(), kCapacity + 1);
  SetWindowTextW(window, ApplyTextSubstitutions(text.data(), kCapacity));
}

bool IsLabelOrButton(HWND window) {
  constexpr int kMostCharacters = 254;
  std::array<wchar_t, kMostCharacters + 1> className{};
  GetClassNameW(window, className.data(), kMostCharacters + 1);
  CharLowerW(className.data());
  return std::wcsstr(className.data(), L"static") != nullptr ||
         std::wcsstr(className.data(), L"button") != nullptr;
}

// No exception may leave this callback, because Windows calls it. When an exception is thrown, the
// callback sets the bool to which `isOutOfMemory` points. RewriteWindowTexts then throws
// std::bad_alloc after the enumeration.
BOOL CALLBACK RewriteChild(HWND child, LPARAM isOutOfMemory) {
  try {
    if (IsLabelOrButton(child)) {
      RewriteWindowText(child);
    }
  } catch (...) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the pointer was passed as an LPARAM
    *reinterpret_cast<bool*>(isOutOfMemory) = true;
  }
  return TRUE;
}

}  // namespace

BOOL RewriteWindowTexts(HWND window) {
  RewriteWindowText(window);
  bool isOutOfMemory = false;
  const BOOL result =
      EnumChildWindows(window, RewriteChild, reinterpret_cast<LPARAM>(&isOutOfMemory));
  if (isOutOfMemory) {
    throw std::bad_alloc();
  }
  return result;
}

}  // namespace kelvo
