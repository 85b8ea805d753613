#pragma once

#include <windows.h>

namespace kelvo {

// Rewrites the text of `window`, which may be of any class, with ApplyTextSubstitutions
// (lib/ui/text_substitution.h). Does the same for each child window, at any depth, whose class name
// contains "static" or "button" in any letter case. Calls SetWindowTextW for each of these windows,
// even when nothing was replaced. Other controls, such as edit boxes and lists, keep their texts. A
// rewritten text has at most 1,022 characters. A text of 1,023 characters or more is not rewritten,
// but is cut to 1,023 characters. Do not pass a window of another process: Windows does not let
// this process read the texts of that window's controls, so the texts of these controls would
// become empty. Returns the result of EnumChildWindows.
BOOL RewriteWindowTexts(HWND window);

}  // namespace kelvo
