#pragma once

#include <windows.h>

namespace kelvo {

// Applies ApplyTextSubstitutions (lib/ui/text_substitution.h) to the text of `window` and of those
// of its children, at any depth, whose class name contains "static" or "button" in any letter case;
// other controls, such as edit boxes and lists, keep theirs. A rewritten text has at most 1,022
// characters. A text of 1,023 characters or more is not rewritten but cut at 1,023. Texts are set
// even when nothing was replaced. Do not pass a window of another process: its controls would lose
// their texts, which Windows does not let this process read. Returns what EnumChildWindows returns.
BOOL RewriteWindowTexts(HWND window);

}  // namespace kelvo
