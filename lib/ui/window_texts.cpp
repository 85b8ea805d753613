#include "lib/ui/window_texts.h"

#include <array>
#include <cwchar>

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

BOOL CALLBACK RewriteChild(HWND child, LPARAM /*unused*/) {
  if (IsLabelOrButton(child)) {
    RewriteWindowText(child);
  }
  return TRUE;
}

}  // namespace

BOOL RewriteWindowTexts(HWND window) {
  RewriteWindowText(window);
  return EnumChildWindows(window, RewriteChild, 0);
}

}  // namespace kelvo
