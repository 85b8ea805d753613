#include <aclapi.h>

#include <functional>
#include <map>

#include "lib/process/interactive_desktop.h"
#include "lib/process/run_as_user.h"
#include "lib/security/access_control_entry.h"
#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/token_information.h"
#include "lib/security/token_object_access.h"
#include "lib/security/token_privileges.h"
#include "lib/security/window_object_access.h"
#include "lib/string/format_text.h"
#include "lib/trace/trace_sink.h"
#include "tests/security/test_acl.h"
#include "tests/support/failing_call.h"

constexpr FailingCall kWatched[] = {
    SETS_LAST_ERROR(OpenProcessToken), SETS_LAST_ERROR(GetTokenInformation),
    SETS_LAST_ERROR(AdjustTokenPrivileges), SETS_LAST_ERROR(GetUserObjectInformationW),
    SETS_LAST_ERROR(HeapAlloc), SETS_LAST_ERROR(LocalAlloc), SETS_LAST_ERROR(CopySid),
    RETURNS_ERROR(GetSecurityInfo), SETS_LAST_ERROR(GetAclInformation), SETS_LAST_ERROR(GetAce),
    SETS_LAST_ERROR(InitializeAcl), SETS_LAST_ERROR(AddAce), RETURNS_ERROR(SetSecurityInfo),
    SETS_LAST_ERROR(InitializeSecurityDescriptor), SETS_LAST_ERROR(GetKernelObjectSecurity),
    SETS_LAST_ERROR(GetSecurityDescriptorDacl), SETS_LAST_ERROR(GetUserNameW),
    RETURNS_ERROR(SetEntriesInAclW), SETS_LAST_ERROR(MakeAbsoluteSD),
    SETS_LAST_ERROR(SetSecurityDescriptorDacl), SETS_LAST_ERROR(SetKernelObjectSecurity),
    SETS_LAST_ERROR(OpenWindowStationW), SETS_LAST_ERROR(OpenDesktopW),
    // Must be last: if this call fails, RunAsUser may close the station that later runs need.
    SETS_LAST_ERROR(SetProcessWindowStation)};

// The operation under test, and those traced messages that begin with the operation's name.
static std::wstring operation, traced;

// In each run of an operation, at most one call of a kWatched function is made to fail or throw.
// failure_messages.txt lists, for each outcome and function, the first call with that outcome:
//   fails: the operation fails, and its last message is "exception caught in __finally"
//   fails, no last message: the operation fails, but does not trace that message
//   ..., usual trace: before that, traces only "FUNCTION Failed" or, if the call throws, nothing
TEST_CASE("failing calls: outcomes and messages as in failure_messages.txt") {
  // Uses a new window station instead of the interactive one, which all programs share.
  const DesktopScope standIn(L"kelvo stand-in", L"Default");
  REPLACE(OpenWindowStationW,
          [](auto original, auto, auto... rest) { return original(L"kelvo stand-in", rest...); });
  const WindowObjects scope;
  const OwnedKernelObject token = OwnToken();
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  // `many` does not fit in the stack buffers of AllowAccessToWinSta and AllowAccessToDesktop, so
  // these two call HeapAlloc. For other operations, the station and desktop have the DACL `few`.
  const TestAcl many(std::vector<TestAce>(51));
  const TestAcl few(std::vector<TestAce>(3));
  TestAce ace{.mask = 9};
  TestAce audit{.type = SYSTEM_AUDIT_ACE_TYPE};
  const TestAcl list({{.type = 1}, audit});
  SID invalid{};
  const PSID sids[] = {&invalid};
  const wchar_t* const names[] = {L"SeNoSuchPrivilege", nullptr};
  DWORD count = 0;
  wchar_t command[] = L"no such program";
  const auto allowAll = [&](HANDLE object, SE_OBJECT_TYPE type, const wchar_t* name) {
    return AllowTokenFullAccessToObject(token.get(), object, type, name);
  };
  const std::pair<const wchar_t*, std::function<bool()>> operations[] = {
      {L"FindACEInACL", [&] { return FindACEInACL(list.acl, ace.get()) == 0; }},
      {L"CopyACL", [&] { return CopyACL(TestAcl({}, 40).acl, list.acl); }},
      {L"GetACEInsertionIndex", [&] { return GetACEInsertionIndex(list.acl, audit.get()) == 0; }},
      {L"GetACEInsertionIndex", [&] { return GetACEInsertionIndex(list.acl, ace.get()) == 0; }},
      {L"CalculateACLSize", [&] { return CalculateACLSize(list.acl, sids, 1, nullptr, 0); }},
      {L"AllocateACE", [&] { return AllocateACE(0, 0, 1, &ace.sid); }},
      {L"DeleteDenyACEofObject",
       [&] { return DeleteDenyACEofObject(&ace.sid, scope.desktop, SE_WINDOW_OBJECT); }},
      {L"AllowAccessToWinSta", [&] { return AllowAccessToWinSta(&ace.sid, scope.station); }},
      {L"AllowAccessToDesktop", [&] { return AllowAccessToDesktop(&ace.sid, scope.desktop); }},
      {L"GetFromToken", [&] { return GetFromToken(token.get(), TokenUser); }},
      {L"CreateTokenPriv", [&] { return CreateTokenPriv(&count, names, FALSE); }},
      {L"AllowTokenFullAccessToObject",
       [&] { return allowAll(scope.desktop, SE_WINDOW_OBJECT, L"Desktop"); }},
      {L"AllowTokenFullAccessToObject",
       [&] { return allowAll(scope.station, SE_WINDOW_OBJECT, L"WinStat"); }},
      {L"AllowTokenFullAccessToObject",
       [&] { return allowAll(event.get(), SE_KERNEL_OBJECT, L"Desktop"); }},
      {L"ModifySecurity", [&] { return ModifySecurity(event.get(), 1); }},
      {L"RunAsUser", [&] { return IsOnInteractiveDesktop(); }},
      {L"RunAsUser", [&] { return RunAsUser(command, TRUE, nullptr); }}};
  SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
    const std::wstring text = tag == std::wstring(L"RunAsEx") ? message : L"a wrong tag";
    traced += text.starts_with(operation + L" ") ? L"," + text.substr(operation.length()) : L"";
    throw 1;  // must not affect the operation
  });
  std::map<std::wstring, std::map<std::wstring, std::array<std::wstring, 2>>> outcomes;
  for (const auto& [name, succeeds] : operations) {
    operation = name;
    const auto isReached = [&](const FailingCall& failing, int nth, bool throws) {
      // The previous run may have switched the station and the desktop, and changed their DACLs.
      SetProcessWindowStation(scope.station);
      SetThreadDesktop(scope.desktop);
      for (const HANDLE object : {HANDLE{scope.station}, HANDLE{scope.desktop}}) {
        SetSecurityInfo(object, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                        operation.starts_with(L"AllowAccess") ? many.acl : few.acl, nullptr);
      }
      traced.clear();
      bool succeeded = false;
      const bool wasReached = failing.run(nth, throws, [&] { succeeded = succeeds(); });
      if (!wasReached && succeeded) {
        return false;
      }
      std::wstring outcome = succeeded ? L"succeeds" : L"fails, no last message";
      const std::wstring cleanUp = L", exception caught in __finally";
      if (!succeeded && traced.ends_with(cleanUp)) {
        outcome = L"fails";
        traced.erase(traced.length() - cleanUp.length());
      }
      const WString named = throws ? L"" : FormatText(L", %hs Failed", failing.function);
      const bool isUsual = wasReached && !succeeded && traced == named.c_str();
      outcome += isUsual ? L", usual trace" : traced;
      std::wstring& calls = outcomes[name][outcome][throws ? 1 : 0];
      const WString call = FormatText(L" %hs-", failing.function);
      if (wasReached && calls.find(call.c_str()) == std::wstring::npos) {
        calls += call.c_str() + std::to_wstring(nth);
      }
      return wasReached;
    };
    for (const FailingCall& failing : kWatched) {
      for (const bool throws : {false, true}) {
        for (int nth = 1; isReached(failing, nth, throws); ++nth) {
        }
      }
    }
  }
  // RunAsUser first grants this process's user all rights on the interactive desktop (standIn).
  WriteDacl(standIn.desktop, L"D:(A;;GA;;;WD)");
  RunAsUser(command, TRUE, nullptr);
  CHECK(ReadDacl(standIn.desktop).find(kAllOfDesktop) != std::wstring::npos);
  SetTraceSink(nullptr);
  TraceMessage(L"nobody", L"listens");
  std::wstring seen;
  const auto show = [&](const std::wstring& outcome, const std::wstring& calls) {
    const bool isLong = outcome.length() + calls.length() > 115;
    seen += L"    " + outcome + (isLong ? L":\n       " : L":") + calls + L"\n";
  };
  for (const auto& [name, ofName] : outcomes) {
    seen += name + L"\n";
    for (const auto& [outcome, calls] : ofName) {
      const auto& [failed, thrown] = calls;
      const bool isSame = failed == thrown && !failed.empty();
      if (!failed.empty() || thrown.empty()) {
        show(outcome + (isSame ? L" (also thrown)" : L""), failed);
      }
      if (!thrown.empty() && !isSame) {
        show(outcome + L" (thrown)", thrown);
      }
    }
  }
  CheckAgainstFile(Ascii(seen), L"failure_messages.txt");
}
