#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a string at a delimiter, which is matched as a whole, not as a set of characters:
//   for (StringTokenizer items(list, L";", true); items.HasMoreTokens();) Use(items.NextToken());
// Reading all items takes time linear in the length of the string. The delimiter must not be empty:
// if `collapse` is true, the constructor would never return; if `collapse` is false, NextToken
// would return empty items forever.
class StringTokenizer {
 public:
  // Stores both strings. If `collapse` is true, a run of adjacent delimiters counts as one
  // delimiter, and delimiters at the start and the end are ignored, so that no item is empty. If
  // `collapse` is false, there is an empty item between two adjacent delimiters and before a
  // delimiter at the start, but none after a delimiter at the end.
  StringTokenizer(WString text, WString delimiter, bool collapse);

  // Returns whether there is another item.
  [[nodiscard]] bool HasMoreTokens() const { return next_ < text_.length(); }

  // Returns the next item, or an empty string when there is none left.
  WString NextToken();

 private:
  // Replaces each run of adjacent delimiters in `text_` with one delimiter. Called only by the
  // constructor, when `collapse` is true and the delimiter is longer than one wchar_t. Delimiters
  // are matched from left to right without overlap: "aaa" contains the delimiter "aa" once.
  void CollapseRuns();

  // Moves `next_` past the run of delimiters that starts at `next_`, if any. Called only when
  // `collapse` is true and the delimiter is one wchar_t: by the constructor, and by NextToken after
  // an item that ends at a delimiter.
  void SkipRun();

  WString text_;
  WString delimiter_;
  bool skipsRuns_ = false;
  // The position of the next item in `text_`. The returned items are not erased from `text_`:
  // erasing each of them would take quadratic time.
  std::size_t next_ = 0;
};

}  // namespace kelvo
