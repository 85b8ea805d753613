#include "status/json_report.h"

#include <nlohmann/json.hpp>

#include "lib/string/utf8.h"

namespace kelvo {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kSchema = 1;
constexpr int kIndent = 2;

Json ToJson(bool value) { return value; }
Json ToJson(DWORD value) { return value; }
Json ToJson(const WString& text) { return ToUtf8(text); }

Json ToJson(const Item& item) {
  Json object{{"item", item.kind}, {"state", StateName(item.state)}, {"name", nullptr}};
  if (!item.name.empty()) {
    object["name"] = ToJson(item.name);
  }
  for (const Detail& detail : item.details) {
    object[detail.key] = std::visit([](const auto& value) { return ToJson(value); }, detail.value);
  }
  return object;
}

}  // namespace

std::string JsonReport(const std::vector<Item>& items) {
  Json array = Json::array();
  for (const Item& item : items) {
    array.push_back(ToJson(item));
  }
  const Json report{{"schema", kSchema},
                    {"version", KELVO_VERSION},
                    {"state", StateName(WorstState(items))},
                    {"items", array}};
  return report.dump(kIndent) + "\n";
}

}  // namespace kelvo
