#include "status/report.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "lib/string/utf8.h"
#include "lib/string/visible_text.h"

namespace kelvo {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kSchema = 2;
constexpr int kIndent = 2;

// The widths of the columns for the state and the kind. Each width is the length of the longest
// text in the column, plus two spaces.
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

Json ToJson(bool value) { return value; }
Json ToJson(DWORD value) { return value; }
Json ToJson(const WString& text) { return ToUtf8(text); }

Json ToJson(const Item& item) {
  Json object{{"item", item.kind}, {"state", StateName(item.state)}, {"name", nullptr}};
  if (!item.name.empty()) {
    object["name"] = ToJson(item.name);
  }
  for (const Detail& detail : item.details) {
    if (!detail.key.empty()) {
      object[detail.key] =
          std::visit([](const auto& value) { return ToJson(value); }, detail.value);
    }
  }
  return object;
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

std::string JsonReport(const std::vector<Item>& items) {
  Json array = Json::array();
  for (const Item& item : items) {
    array.push_back(ToJson(item));
  }
  const Json report{{"schema", kSchema},
                    {"version", KELVO_VERSION},
                    {"state", StateName(WorstState(items))},
                    {"items", array}};
  constexpr bool kInAscii = true;
  return report.dump(kIndent, ' ', kInAscii) + "\n";
}

}  // namespace kelvo
