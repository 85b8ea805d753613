#pragma once

#include <windows.h>

namespace kelvo {

// Applies ApplyTextSubstitutions to the text of `window` and of those of its children, at any
// depth, whose class name contains "static" or "button" in any letter case; other controls (edit
// boxes, lists) keep theirs. A rewritten text is at most 1,022 characters long. A text of 1,023
// characters or more is not rewritten, but cut at 1,023. Texts are written back also when nothing
// was replaced; controls of another process would lose theirs, which Windows does not let this
// process read. Returns what EnumChildWindows returns.
BOOL RewriteWindowTexts(HWND window);

}  // namespace kelvo
