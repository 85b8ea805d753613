#pragma once

#include <windows.h>

namespace kelvo {

// Applies ApplyTextSubstitutions (lib/ui/text_substitution.h) to the text of `window`, whatever its
// class, and of those of its child windows, at any depth, whose class name contains "static" or
// "button" in any letter case. Other controls, such as edit boxes and lists, keep theirs. Sets each
// text even when nothing was replaced. A rewritten text has at most 1,022 characters; a text of
// 1,023 characters or more is not rewritten but cut at 1,023. Do not pass a window of another
// process: its controls would lose their texts, which Windows does not let this process read.
// Returns the result of EnumChildWindows.
BOOL RewriteWindowTexts(HWND window);

}  // namespace kelvo
