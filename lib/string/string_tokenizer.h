#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a string at a delimiter, which is matched as a whole and not as a set of characters:
//   for (StringTokenizer items(list, L";", true); items.HasMoreTokens();) Use(items.NextToken());
// Walking all items takes time linear in the length of the string. The delimiter must not be empty:
// with `collapse` the constructor would never return, without it NextToken would return empty items
// forever.
class StringTokenizer {
 public:
  // Keeps both strings. With `collapse`, runs of adjacent delimiters count as one, and delimiters
  // at the start and the end are dropped, so that no item is empty. Without it, items between
  // adjacent delimiters and before a leading one are empty; no empty item follows a delimiter at
  // the end.
  StringTokenizer(WString text, WString delimiter, bool collapse);

  // Returns whether NextToken has an item to hand out.
  [[nodiscard]] bool HasMoreTokens() const { return next_ < text_.length(); }

  // Returns the next item, or an empty string when there is none left.
  WString NextToken();

 private:
  // Rewrites the string without the repeated delimiters of a run. A delimiter of one unit, which
  // cannot overlap itself, is left in place and skipped when an item is handed out.
  void CollapseRuns();
  void SkipRun();

  WString text_;
  WString delimiter_;
  bool skipsRuns_ = false;
  // Where the next item starts. Cutting the items before it off the front would take quadratic
  // time.
  std::size_t next_ = 0;
};

}  // namespace kelvo
