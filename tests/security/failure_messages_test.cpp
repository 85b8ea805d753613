#include <windows.h>

#include <aclapi.h>

#include <functional>
#include <set>
#include <string>

#include "lib/platform/owned.h"
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
#include "lib/trace/trace_sink.h"
#include "tests/security/test_acl.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/desktop_scope.h"

namespace kelvo {

using test::TestAce;
using test::TestAcl;
using Messages = std::vector<std::wstring>;
using Steps = std::set<std::wstring>;
using Call = std::function<bool()>;

namespace {

enum Fault { kAnswersFailure, kThrows, kFaults };

template <typename Result>
Result Fail(Fault fault) {
  if (fault == kThrows) {
    throw 1;
  }
  if (fault == kFaults) {
    RaiseException(STATUS_INTEGER_DIVIDE_BY_ZERO, 0, 0, nullptr);
  }
  SetLastError(ERROR_ACCESS_DENIED);
  return std::is_same_v<Result, DWORD> ? Result(ERROR_ACCESS_DENIED) : Result{};
}

// Runs `call` while the nth call to the function fails; answers whether there was one.
#define FAILING(function)                                                                        \
  [](int nth, Fault fault, const Call& call) {                                                   \
    const auto failing = KELVO_REPLACE_IMPORT(function, [&](auto original, auto... parameters) { \
      using Result = decltype(original(parameters...));                                          \
      return --nth == 0 ? Fail<Result>(fault) : original(parameters...);                         \
    });                                                                                          \
    call();                                                                                      \
    return nth <= 0;                                                                             \
  }

using Failing = bool (*)(int nth, Fault fault, const Call& call);
constexpr Failing kFailing[] = {
    FAILING(OpenProcessToken), FAILING(GetTokenInformation), FAILING(AdjustTokenPrivileges),
    FAILING(GetUserObjectInformationW), FAILING(HeapAlloc), FAILING(LocalAlloc), FAILING(CopySid),
    FAILING(GetSecurityInfo), FAILING(GetAclInformation), FAILING(GetAce), FAILING(InitializeAcl),
    FAILING(AddAce), FAILING(SetSecurityInfo), FAILING(InitializeSecurityDescriptor),
    FAILING(GetKernelObjectSecurity), FAILING(GetSecurityDescriptorDacl), FAILING(GetUserNameW),
    FAILING(SetEntriesInAclW), FAILING(MakeAbsoluteSD), FAILING(SetSecurityDescriptorDacl),
    FAILING(SetKernelObjectSecurity), FAILING(OpenWindowStationW), FAILING(OpenDesktopW),
    // Last: when it fails to restore the station, that is lost.
    FAILING(SetProcessWindowStation)};

Messages traced;
// Where each call is made from, and what the access lists there are before it.
HWINSTA station = nullptr;
HDESK desktop = nullptr;
const TestAcl* startingList = nullptr;

// Makes each call that an operation makes to these functions fail, one at a time and in each way.
// Checks that the operation, which answers whether it succeeded, traces one step at most and then,
// if it has a clean-up that speaks, this failure; and which steps there are in all.
void CheckSteps(const std::wstring& operation, bool hasCleanUp, const Call& succeeds,
                const Steps& expected) {
  CAPTURE(operation);
  Steps steps;
  const auto runOnce = [&](Failing failing, int nth, Fault fault) {
    // A restoring call may have been the one that failed.
    SetProcessWindowStation(station);
    SetThreadDesktop(desktop);
    for (const HANDLE object : {HANDLE{station}, HANDLE{desktop}}) {
      SetSecurityInfo(object, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                      startingList->acl, nullptr);
    }
    traced.clear();
    bool succeeded = false;
    const bool wasReached = failing(nth, fault, [&] { return succeeded = succeeds(); });
    std::erase_if(traced, [&](const auto& text) { return !text.starts_with(operation + L" "); });
    const bool isEarly = traced == Messages{L"RunAsUser OpenProcessToken On Self Failed"};
    if (hasCleanUp && !succeeded && !isEarly) {
      REQUIRE_FALSE(traced.empty());
      CHECK(traced.back() == operation + L" exception caught in __finally");
      traced.pop_back();
    }
    CHECK(traced.size() <= 1);
    for (const std::wstring& message : traced) {
      steps.insert(message.substr(operation.size() + 1));
    }
    return wasReached;
  };
  for (const Failing failing : kFailing) {
    for (const Fault fault : {kAnswersFailure, kThrows, kFaults}) {
      for (int nth = 1; runOnce(failing, nth, fault); ++nth) {
      }
    }
  }
  CHECK(steps == expected);
}

}  // namespace

TEST_CASE("each failing call has its message, then the operation its own") {
  SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
    traced.push_back(tag == std::wstring(L"RunAsEx") ? message : L"a wrong tag");
    throw 1;  // is the sink's own trouble
  });
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  station = scope.Station();
  desktop = scope.Desktop();
  // More than fits on the stack, and enough to have all calls made.
  const TestAcl many(std::vector<TestAce>(51));
  const TestAcl few({{}, {}});
  startingList = &few;
  OwnedKernelObject token;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  TestAce ace{.mask = 9};
  TestAce audit{.type = SYSTEM_AUDIT_ACE_TYPE};
  const TestAcl list({{.type = 1}, audit});
  SID invalid{};
  const PSID sids[] = {&invalid};
  const wchar_t* const names[] = {L"SeNoSuchPrivilege", nullptr};
  DWORD count = 0;
  wchar_t command[] = L"no such program";

  // The steps without the operation's name.
  const auto check = CheckSteps;
  check(L"FindACEInACL", false, [&] { return FindACEInACL(list.acl, ace.get()) == 0; },
        {L"GetAclInformation Failed", L"GetAce Failed"});
  check(L"CopyACL", false, [&] { return CopyACL(TestAcl({}, 40).acl, list.acl) != FALSE; },
        {L"GetAclInformation Failed", L"GetAce Failed", L"AddAce Failed"});
  check(L"GetACEInsertionIndex", false,
        [&] { return GetACEInsertionIndex(list.acl, audit.get()) == 0; }, {L"Bad Ace Type"});
  check(L"GetACEInsertionIndex", false,
        [&] { return GetACEInsertionIndex(list.acl, ace.get()) == 0; },
        {L"Bad Src Ace Type", L"GetAclInformation Failed", L"GetAce Failed"});
  check(L"CalculateACLSize", false,
        [&] { return CalculateACLSize(list.acl, sids, 1, nullptr, 0) != 0; },
        {L"IsValidSid Failed", L"GetAclInformation Failed"});
  check(L"AllocateACE", false, [&] { return AllocateACE(0, 0, 1, &ace.sid) != nullptr; },
        {L"LocalAlloc Failed", L"CopySid Failed"});
  check(L"DeleteDenyACEofObject", true,
        [&] { return DeleteDenyACEofObject(&ace.sid, desktop, SE_WINDOW_OBJECT) == TRUE; },
        {L"GetSecurityInfo Failed", L"GetAclInformation Failed", L"GetAce Failed",
         L"SetSecurityInfo GetAce Failed"});
  startingList = &many;
  check(L"AllowAccessToWinSta", true,
        [&] { return AllowAccessToWinSta(&ace.sid, station) == TRUE; },
        {L"_malloca Failed", L"GetSecurityInfo Failed", L"InitializeAcl Failed", L"CopyACL Failed",
         L"AddAce Failed", L"SetSecurityInfo Failed"});
  check(L"AllowAccessToDesktop", true,
        [&] { return AllowAccessToDesktop(&ace.sid, desktop) == TRUE; },
        {L"_alloc Failed", L"GetSecurityInfo Failed", L"Init ACL Failed", L"CopyACL Failed",
         L"AddAce Failed", L"SetSecurityInfo Failed"});
  startingList = &few;
  check(L"GetFromToken", false, [&] { return GetFromToken(token.get(), TokenUser) != nullptr; },
        {L"GetTokenInformation Size Failed", L"GetTokenInformation Failed"});
  check(L"CreateTokenPriv", true, [&] { return CreateTokenPriv(&count, names, FALSE) != nullptr; },
        {});
  check(L"ModifySecurity", true, [&] { return ModifySecurity(event.get(), 1) == TRUE; },
        {L"LocalAlloc Failed", L"Invalid SID Found", L"GetKernelObjectSecurity Size Failed",
         L"GetKernelObjectSecurity Failed", L"GetSecurityDescriptorDacl Failed",
         L"GetUserName Failed", L"SetEntriesInAcl Failed", L"MakeAbsoluteSD Size Failed",
         L"MakeAbsoluteSD Failed", L"SetSecurityDescriptorDacl Failed",
         L"SetKernelObjectSecurity Failed"});
  const struct {
    HANDLE object;
    SE_OBJECT_TYPE type;
    const wchar_t* name;
    const wchar_t* lastStep;
  } objects[] = {{desktop, SE_WINDOW_OBJECT, L"Desktop", L"AllowAccessToDesktop Failed"},
                 {station, SE_WINDOW_OBJECT, L"WinStat", L"AllowAccessToWinSta Failed"},
                 {event.get(), SE_KERNEL_OBJECT, L"Desktop", L"Wrong Object"}};
  for (const auto& [object, type, name, lastStep] : objects) {
    check(L"AllowTokenFullAccessToObject", true,
          [&] { return AllowTokenFullAccessToObject(token.get(), object, type, name) == TRUE; },
          {lastStep, L"GetTokenInformation User Failed", L"GetTokenInformation Group Failed",
           L"LocalAlloc Failed", L"DeleteDenyACEofObject User Failed",
           L"DeleteDenyACEofObject Groups Failed"});
  }
  check(L"RunAsUser", false, [&] { return IsOnInteractiveDesktop() == TRUE; },
        {L"GetUserObjectInformation On Current WinStat Failed",
         L"GetUserObjectInformation On Current Desktop Failed"});
  check(L"RunAsUser", true, [&] { return RunAsUser(command, TRUE, nullptr) == TRUE; },
        {L"OpenProcessToken On Self Failed", L"CreateProcessAsUser Failed",
         L"AllowTokenFullAccessToObject for Self Token on hwinstaNew Failed",
         L"AllowTokenFullAccessToObject for Self Token on hdeskNew Failed",
         L"EnablePrivilege SeTakeOwnershipPrivilege Failed",
         L"GetUserObjectInformation On Current WinStat Failed",
         L"GetUserObjectInformation On Current Desktop Failed",
         L"HeapAlloc PSECURITY_DESCRIPTOR Failed", L"InitializeSecurityDescriptor Failed",
         L"SetSecurityDescriptorDacl Failed", L"Open WinStat With WRITE_DAC Failed",
         L"SetProcessWindowStation to hwinstaNew Failed", L"Open Desktop With WRITE_DAC Failed"});
  SetTraceSink(nullptr);
  TraceMessage(L"nobody", L"listens");
}

}  // namespace kelvo
