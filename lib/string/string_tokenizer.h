#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a text at a delimiter, which is matched as a whole and not as a set of characters. The
// whole walk takes time linear in the text. The delimiter must not be empty: with `collapse`
// construction would never end, without it NextToken would give empty items for ever.
class StringTokenizer {
 public:
  // Keeps copies of both texts. With `collapse`, runs of adjacent delimiters count as one, and a
  // delimiter at the start and one at the end are dropped, so that no item is empty. Without it,
  // items between adjacent delimiters and before a leading one are empty; a delimiter at the end
  // never gives an empty item behind it.
  StringTokenizer(WString text, WString delimiter, bool collapse);

  [[nodiscard]] bool HasMoreTokens() const { return next_ < text_.length(); }

  // The next item; an empty text, and no change, once there is none.
  WString NextToken();

 private:
  // Rewrites the text without the repeated delimiters of a run. A delimiter of one unit, which
  // cannot overlap itself, is left in place and skipped when an item is handed out.
  void CollapseRuns();
  void SkipRun();

  WString text_;
  WString delimiter_;
  bool skipsRuns_ = false;
  // What lies before it has been handed out. Cutting it off the front each time would cost the
  // square of the length.
  std::size_t next_ = 0;
};

}  // namespace kelvo
