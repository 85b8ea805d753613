#include "tool/dependent_applications.h"

#include "tests/support/testing.h"

TEST_CASE("ListWithApplication: is case-sensitive; ListWithoutApplication: uses CompareNoCase") {
  struct Row {
    WString list, name, result;
  };
  // "-" stands for std::nullopt.
  const Row added[] = {{L"", L"brindle", L"brindle"}, {L"brindle", L"rind", L"-"},
                       {L"brindle", L"", L"-"},       {L"", L"", L"-"},
                       {L"a", L"A", L"a;A"},          {L"a;;b;", L"c", L"a;;b;;c"},
                       {L";;a", L";b;;", L"a;;b"},    {L"", L";;", L""},
                       {L"a", L" b ", L"a; b "},      {L"\u0416", L"\u0436", L"\u0416;\u0436"}};
  for (const auto& [list, name, result] : added) {
    CAPTURE(list);
    CAPTURE(name);
    CHECK(ListWithApplication(list, name.c_str()).value_or(L"-") == result);
  }
  const auto removed =
      std::to_array({Row(L"brindle", L"rind", L"brindle"), Row(L"a;;b;;c", L"x", L"a;b;c"),
                     Row(L"a;b;A;c;a", L"a", L"b;c"), Row(L"", L"a", L""), Row(L";;;", L"a", L""),
                     Row(L"a;b", L"", L"a;b"), Row(L"a;b", L"a;b", L"a;b"),
                     Row(L"\u0416;x", L"\u0436", L"x"), Row(L"\u00C9", L"\u00E9", L"\u00C9")});
  for (const auto& [list, name, result] : removed) {
    CAPTURE(list);
    CAPTURE(name);
    CHECK(ListWithoutApplication(list, name.c_str()) == result);
  }
}
