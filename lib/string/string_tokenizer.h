#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a string at a delimiter, which is matched as a whole, not as a set of characters:
//   for (StringTokenizer items(list, L";", true); items.HasMoreTokens();) Use(items.NextToken());
// Reading all items takes time linear in the length of the string. The delimiter must not be empty:
// with `collapse`, the constructor would never return; without `collapse`, NextToken would return
// empty items forever.
class StringTokenizer {
 public:
  // Stores both strings. With `collapse`, a run of adjacent delimiters counts as one delimiter, and
  // delimiters at the start and the end are dropped, so that no item is empty. Without `collapse`,
  // there is an empty item between two adjacent delimiters and before a delimiter at the start, but
  // none after a delimiter at the end.
  StringTokenizer(WString text, WString delimiter, bool collapse);

  // Returns whether there is another item.
  [[nodiscard]] bool HasMoreTokens() const { return next_ < text_.length(); }

  // Returns the next item, or an empty string when there is none left.
  WString NextToken();

 private:
  // CollapseRuns replaces each run of delimiters in the string with one delimiter. For a delimiter
  // of one unit, which cannot overlap itself, SkipRun instead skips the run at the start and the
  // run after each item.
  void CollapseRuns();
  void SkipRun();

  WString text_;
  WString delimiter_;
  bool skipsRuns_ = false;
  // The position of the next item. Erasing each returned item from the string would take quadratic
  // time.
  std::size_t next_ = 0;
};

}  // namespace kelvo
