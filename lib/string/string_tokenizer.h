#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a string at a delimiter, which is matched as a whole, not as a set of characters:
//   for (StringTokenizer items(list, L";", true); items.HasMoreTokens();) Use(items.NextToken());
// Reading all items takes time linear in the length of the string. The delimiter must not be empty:
// with `collapse`, the constructor would never return; without it, NextToken would return empty
// items forever.
class StringTokenizer {
 public:
  // Stores both strings. With `collapse`, runs of adjacent delimiters count as one, and delimiters
  // at the start and the end are dropped, so that no item is empty. Without it, items between
  // adjacent delimiters and before a leading one are empty; no empty item follows a delimiter at
  // the end.
  StringTokenizer(WString text, WString delimiter, bool collapse);

  // Returns whether there is another item.
  [[nodiscard]] bool HasMoreTokens() const { return next_ < text_.length(); }

  // Returns the next item, or an empty string when there is none left.
  WString NextToken();

 private:
  // Rewrites the string with one delimiter in place of each run. A delimiter of one unit, which
  // cannot overlap itself, needs no rewriting: SkipRun skips the run after each item.
  void CollapseRuns();
  void SkipRun();

  WString text_;
  WString delimiter_;
  bool skipsRuns_ = false;
  // Where the next item starts. Erasing the items before it would take quadratic time.
  std::size_t next_ = 0;
};

}  // namespace kelvo
