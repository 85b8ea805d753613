#include "status/text_report.h"

#include <algorithm>

#include "lib/string/visible_text.h"

namespace kelvo {

namespace {

// As wide as the longest state and the longest kind, and two spaces.
constexpr std::size_t kStateWidth = 9;
constexpr std::size_t kKindWidth = 16;

std::string Column(std::string text, std::size_t width) {
  std::replace(text.begin(), text.end(), '_', ' ');
  text.resize(std::max(text.length(), width), ' ');
  return text;
}

WString NameAndDetails(const Item& item) {
  WString text = item.name;
  for (const Detail& detail : item.details) {
    if (!detail.phrase.empty()) {
      text += text.empty() ? detail.phrase : L"; " + detail.phrase;
    }
  }
  return text;
}

}  // namespace

std::string TextReport(const std::vector<Item>& items) {
  std::string report;
  for (const Item& item : items) {
    report += Column(StateName(item.state), kStateWidth) + Column(item.kind, kKindWidth) +
              ToVisibleUtf8(NameAndDetails(item)) + "\n";
  }
  return report;
}

}  // namespace kelvo
