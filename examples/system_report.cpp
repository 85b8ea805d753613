// Prints the library's system report, with one line for each entry. Output to a file or a pipe is
// in UTF-8.

#include "lib/sysinfo/system_report.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "lib/string/visible_text.h"
#include "lib/ui/utf8_output.h"

namespace kelvo {

namespace {

// The maximum width of the name column. When a name is wider, the value on its line starts farther
// to the right than the other values.
constexpr std::size_t kWidestColumn = 40;

using Line = std::pair<std::string, std::string>;

std::vector<Line> CollectLines() {
  NameTextList report;
  CollectSystemReport(report);
  std::vector<Line> lines;
  lines.reserve(report.size());
  for (const auto& [name, text] : report) {
    lines.emplace_back(ToVisibleUtf8(name), ToVisibleUtf8(text));
  }
  return lines;
}

std::size_t ColumnWidth(const std::vector<Line>& lines) {
  std::size_t width = 0;
  for (const auto& [name, text] : lines) {
    width = std::max(width, CountCharacters(name));
  }
  return std::min(width, kWidestColumn);
}

bool Print(const std::vector<Line>& lines) {
  const std::size_t width = ColumnWidth(lines);
  std::string all;
  for (const auto& [name, text] : lines) {
    all += name;
    all.append(width - std::min(width, CountCharacters(name)), ' ');
    all += "  " + text + "\n";
  }
  return WriteUtf8(STD_OUTPUT_HANDLE, all);
}

}  // namespace

}  // namespace kelvo

extern "C" int wmain() { return kelvo::Print(kelvo::CollectLines()) ? 0 : 1; }
