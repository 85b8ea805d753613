#pragma once

#include <windows.h>

namespace kelvo {

// Rewrites the text of a window with ApplyTextSubstitutions (lib/ui/text_substitution.h). `window`
// may be of any class. Does the same for each child window, at any depth, whose class name contains
// "static" or "button" in any letter case. Calls SetWindowTextW for each of these windows, even
// when nothing was replaced. Other controls, such as edit boxes and lists, keep their texts.
//
// If a window's text has at most 1,022 characters, the rewritten text is cut off after 1,022
// characters. If a window's text is longer, nothing in it is replaced, and it is cut off after
// 1,023 characters.
//
// Do not pass a window of another process. GetWindowTextW and SetWindowTextW do not support the
// controls of another process. GetWindowTextW may return an empty text for such a control. Writing
// this text back could clear the window's labels and buttons.
//
// Returns the result of EnumChildWindows.
BOOL RewriteWindowTexts(HWND window);

}  // namespace kelvo
