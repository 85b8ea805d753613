#include "lib/security/window_object_access.h"

#include <aclapi.h>

#include "lib/platform/owned.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/token_object_access.h"
#include "tests/security/test_acl.h"
#include "tests/support/catch.h"
#include "tests/support/dacl_text.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/trace_recorder.h"

namespace kelvo {

using test::NormalDacl;
using test::ReadDacl;
using test::WriteDacl;

namespace {

// "LS" in SDDL.
test::TestAce localService(0, 0, 0, 19);

// Each '$' of the text replaced.
std::wstring Fill(const wchar_t* text, const std::wstring& value) {
  std::wstring filled;
  for (; *text != L'\0'; ++text) {
    filled += *text == L'$' ? value : std::wstring(1, *text);
  }
  return filled;
}

}  // namespace

TEST_CASE("an explicit entry is granted once, in its place") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  const auto inserting = KELVO_REPLACE_IMPORT(AddAce, test::AddAceAtIndex{});
  std::wstring many = L"D:(D;;CC;;;WD)";
  for (int count = 0; count < 60; ++count) {
    many += L"(A;;CC;;;WD)";
  }
  const std::wstring manyAfter = std::wstring(many).insert(14, L"(A;;$;;;LS)");
  const wchar_t* const cases[][2] = {{L"D:(D;;CC;;;WD)(A;;CC;;;WD)(A;ID;CC;;;BA)",
                                      L"D:(D;;CC;;;WD)(A;;$;;;LS)(A;;CC;;;WD)(A;ID;CC;;;BA)"},
                                     {L"D:(A;;CC;;;WD)(A;;$;;;LS)", L"D:(A;;CC;;;WD)(A;;$;;;LS)"},
                                     {L"D:(A;ID;$;;;LS)", L"D:(A;;$;;;LS)(A;ID;$;;;LS)"},
                                     {L"D:(D;;CC;;;WD)", L"D:(D;;CC;;;WD)(A;;$;;;LS)"},
                                     {L"D:", L"D:(A;;$;;;LS)"},
                                     {L"none", L"none"},
                                     {many.c_str(), manyAfter.c_str()}};
  for (const auto& [before, after] : cases) {
    WriteDacl(scope.Station(), Fill(before, L"0xf037f"));
    WriteDacl(scope.Desktop(), Fill(before, L"0xf01ff"));
    for (int time = 0; time < 2; ++time) {
      CHECK(AllowAccessToWinSta(&localService.sid, scope.Station()) == TRUE);
      CHECK(AllowAccessToDesktop(&localService.sid, scope.Desktop()) == TRUE);
      CHECK(ReadDacl(scope.Station()) == NormalDacl(Fill(after, L"0xf037f")));
      CHECK(ReadDacl(scope.Desktop()) == NormalDacl(Fill(after, L"0xf01ff")));
    }
  }
}

TEST_CASE("deny entries for the SID go, all but one at index 0") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  int writes = 0;
  const auto counting = KELVO_REPLACE_IMPORT(SetSecurityInfo, [&](auto original, auto... rest) {
    ++writes;
    return original(rest...);
  });
  const struct {
    const wchar_t* before;
    const wchar_t* after;
    BOOL answer;
    int writes;
  } cases[] = {
      {L"D:(A;;CC;;;WD)(D;;CC;;;LS)(D;;DC;;;LS)(D;;CC;;;NS)(D;ID;CC;;;LS)",
       L"D:(A;;CC;;;WD)(D;;CC;;;NS)", TRUE, 1},
      {L"D:(D;;CC;;;LS)(D;;CC;;;LS)", L"D:(D;;CC;;;LS)", TRUE, 1},
      {L"D:(A;;CC;;;WD)(A;;CC;;;LS)", L"D:(A;;CC;;;WD)(A;;CC;;;LS)", TRUE, 1},
      {L"none", L"none", TRUE, 0},
      {L"D:", L"D:", FALSE, 0},
  };
  for (const auto& row : cases) {
    WriteDacl(scope.Desktop(), row.before);
    writes = 0;
    CHECK(DeleteDenyACEofObject(&localService.sid, scope.Desktop(), SE_WINDOW_OBJECT) ==
          row.answer);
    CHECK(writes == row.writes);
    CHECK(ReadDacl(scope.Desktop()) == NormalDacl(row.after));
  }
}

TEST_CASE("an object entry counts by the SID at byte 8") {
  const test::TestAcl list({localService, test::TestAce(6, 0, 1, 19), test::TestAce(6)});
  const auto read = KELVO_REPLACE_IMPORT(
      GetSecurityInfo, [&](auto, HANDLE, auto, auto, auto, auto, ACL** dacl, auto, auto) -> DWORD {
        *dacl = list.get();
        return ERROR_SUCCESS;
      });
  const auto write =
      KELVO_REPLACE_IMPORT(SetSecurityInfo, [](auto...) -> DWORD { return ERROR_SUCCESS; });
  CHECK(DeleteDenyACEofObject(&localService.sid, nullptr, SE_WINDOW_OBJECT) == TRUE);
  CHECK(list.get()->AceCount == 2);
}

TEST_CASE("a token's user gets the rights that the type's name asks for") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  const auto inserting = KELVO_REPLACE_IMPORT(AddAce, test::AddAceAtIndex{});
  OwnedKernelObject token;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  const std::wstring denied =
      Fill(L"D:(A;;CC;;;LS)(D;;CC;;;$)(D;;CC;;;WD)(D;;CC;;;NS)", test::CurrentUserSid());
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"Desktop", L"0xf01ff"}, {L"a DESK", L"0xf01ff"}, {L"WinStat", L"0xf037f"},
      {L"des", L"0xf037f"},     {L"", L"0xf037f"},       {nullptr, L"0xf037f"}};
  for (const auto& [typeName, mask] : cases) {
    WriteDacl(scope.Desktop(), denied);
    CHECK(AllowTokenFullAccessToObject(token.get(), scope.Desktop(), SE_WINDOW_OBJECT, typeName) ==
          TRUE);
    CHECK(ReadDacl(scope.Desktop()) ==
          NormalDacl(L"D:(A;;" + std::wstring(mask) + L";;;" + test::CurrentUserSid() +
                     L")(A;;CC;;;LS)(D;;CC;;;NS)"));
  }
  test::TraceRecorder recorder;
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  WriteDacl(event.get(), denied, SE_KERNEL_OBJECT);
  CHECK(AllowTokenFullAccessToObject(token.get(), event.get(), SE_KERNEL_OBJECT, nullptr) == FALSE);
  CHECK(ReadDacl(event.get(), SE_KERNEL_OBJECT) == NormalDacl(L"D:(A;;CC;;;LS)(D;;CC;;;NS)"));
  CHECK(recorder.Take().size() == 2);
  CHECK(AllowTokenFullAccessToObject(nullptr, event.get(), SE_WINDOW_OBJECT, L"") == FALSE);
  CHECK(AllowTokenFullAccessToObject(token.get(), nullptr, SE_WINDOW_OBJECT, L"") == FALSE);
  CHECK(recorder.Take().empty());
}

}  // namespace kelvo
