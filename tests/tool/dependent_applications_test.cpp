#include "tool/dependent_applications.h"

#include <tuple>

#include "tests/support/catch.h"
#include "tests/tool/rehearsal.h"

namespace kelvo::test {

namespace {

struct Row {
  const wchar_t* list;
  const wchar_t* name;
  const wchar_t* result;  // null: nothing to write
};

}  // namespace

TEST_CASE("a name is added unless it occurs in the list") {
  const Row rows[] = {{L"", L"brindle", L"brindle"},
                      {L"brindle", L"brindle", nullptr},
                      {L"brindle", L"rind", nullptr},
                      {L"brindle", L"", nullptr},
                      {L"", L"", nullptr},
                      {L"brindle", L"Brindle", L"brindle;Brindle"},
                      {L"a;;b;", L"c", L"a;;b;;c"},
                      {L";;a", L";b;;", L"a;;b"},
                      {L"", L";;", L""},
                      {L"a", L" b ", L"a; b "},
                      {L"\u0416", L"\u0436", L"\u0416;\u0436"}};
  for (const Row& row : rows) {
    CAPTURE(row.list, row.name);
    const std::optional<WString> result = ListWithApplication(row.list, row.name);
    CHECK(result.has_value() == (row.result != nullptr));
    CHECK(result.value_or(WString()) == WString(row.result));
  }
}

TEST_CASE("every item of a name is removed, whatever its case") {
  const Row rows[] = {{L"brindle;Brindle", L"BRINDLE", L""},
                      {L"brindle", L"rind", L"brindle"},
                      {L"a;;b;;c", L"x", L"a;b;c"},
                      {L"a;b;A;c;a", L"a", L"b;c"},
                      {L"", L"a", L""},
                      {L";;;", L"a", L""},
                      {L"a;b", L"", L"a;b"},
                      {L"a;b", L"a;b", L"a;b"},
                      {L"\u0416;\u00C9", L"\u0436", L"\u00C9"},
                      {L"\u00C9", L"\u00E9", L"\u00C9"}};
  for (const Row& row : rows) {
    CAPTURE(row.list, row.name);
    CHECK(ListWithoutApplication(row.list, row.name) == WString(row.result));
  }
}

TEST_CASE("what stands under the name already decides what an addition makes of it") {
  const std::wstring longest = std::wstring(1015, L'x') + L";brindle";
  const std::tuple<const char*, DWORD, std::wstring, std::wstring> rows[] = {
      {"1,023 characters", REG_SZ, longest, longest + L";kite"},
      {"1,024 characters", REG_SZ, longest + L"x", L"kite"},
      {"foreign separators", REG_SZ, L";;a;;b;", L"a;;b;;kite"},
      {"an expandable text", REG_EXPAND_SZ, L"a;%OS%", L"a;Windows_NT;kite"},
      {"a number", REG_DWORD, L"a", L"kite"},
  };
  Rehearsal machine;
  for (const auto& [what, type, stored, after] : rows) {
    SetApplications(stored, type);
    machine.Run(L"register kite");
    INFO(what);
    CHECK(Applications() == after);
  }
}

TEST_CASE("names outside ASCII are kept in the registry and shown as far as a byte can") {
  Rehearsal machine;
  machine.Run(L"register \"\u017Dofie \u00E9\U0001F600\"");
  CHECK(Applications() == L"\u017Dofie \u00E9\U0001F600");
  machine.Run(L"register kite");
  CHECK(machine.Run(L"unregister KITE").output ==
        "OK: Dependant applications exist: ?ofie \xE9??\r\n");
}

}  // namespace kelvo::test
