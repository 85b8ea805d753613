#include "lib/security/file_access.h"

#include <cstring>
#include <functional>

#include "tests/security/test_acl.h"
#include "tests/support/failing_call.h"
#include "tests/support/testing.h"

static BOOL isWritten = FALSE;

// Runs an action with a simulated file. `list` is its DACL, in SDDL. A real file would not work:
// Wine does not store a file's DACL, but converts it to Unix permission bits.
static void WithFile(std::wstring& list, const std::function<void()>& action) {
  REPLACE(GetFileSecurityW, [&](auto, auto, auto, void* descriptor, DWORD length, DWORD* size) {
    const OwnedLocalMemory<void> made = FromSddl(list, size);
    std::memcpy(descriptor, made.get(), length >= *size ? *size : 0);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return length >= *size ? TRUE : FALSE;
  });
  REPLACE(SetFileSecurityW, [&](auto, auto, auto, void* descriptor) {
    list = ToSddl(descriptor);
    return isWritten = TRUE;
  });
  action();
}

// Grants administrators access to the simulated file. Returns the text that was printed.
static std::string Printed() {
  isWritten = FALSE;
  char printed[4096] = "";
  std::setvbuf(stdout, printed, _IOFBF, sizeof(printed));
  CHECK(AddFileAccessRights(L"file", L"BA", FILE_ALL_ACCESS) == isWritten);
  std::string text = printed;
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  return text;
}

TEST_CASE("AddFileAccessRights: replaces the account's ACEs that precede all inherited ACEs") {
  for (auto [list, result] :
       {std::pair<std::wstring, std::wstring>{L"none", L"D:(A;;FA;;;BA)"},
        {L"D:(A;;FR;;;BA)(D;;FW;;;BG)(A;ID;FR;;;BA)", L"D:(D;;FW;;;BG)(A;;FA;;;BA)(A;ID;FR;;;BA)"},
        {L"D:(A;ID;FR;;;WD)(A;;FR;;;BA)", L"D:(A;;FA;;;BA)(A;ID;FR;;;WD)(A;;FR;;;BA)"},
        {L"D:P(D;;FW;;;BA)(A;;FR;;;WD)", L"D:P(A;;FR;;;WD)(A;;FA;;;BA)"},
        {L"D:PAI(A;ID;FR;;;WD)", L"D:ARAI(A;;FA;;;BA)(A;ID;FR;;;WD)"}}) {
    for (int time = 0; time < 2; ++time) {
      WithFile(list, [] { CHECK(Printed() == ""); });
      CHECK(list == result);
    }
  }
}

TEST_CASE("AddFileAccessRights: prints a failing function's name, leaves the file unchanged") {
  constexpr FailingCall kFailing[] = {
      SETS_LAST_ERROR(GetFileSecurityW), SETS_LAST_ERROR(HeapAlloc),
      SETS_LAST_ERROR(GetSecurityDescriptorDacl), SETS_LAST_ERROR(GetAclInformation),
      SETS_LAST_ERROR(InitializeAcl), SETS_LAST_ERROR(GetAce), SETS_LAST_ERROR(AddAce),
      SETS_LAST_ERROR(AddAccessAllowedAce), SETS_LAST_ERROR(SetSecurityDescriptorDacl),
      SETS_LAST_ERROR(SetFileSecurityW),
      // The messages for these two functions lack the space before "Error".
      SETS_LAST_ERROR(InitializeSecurityDescriptor), SETS_LAST_ERROR(GetSecurityDescriptorControl)};
  const std::wstring before = L"D:AI(A;;FR;;;WD)(A;ID;FR;;;WD)";
  std::wstring list = before;
  WithFile(list, [&] {
    for (const FailingCall& failing : kFailing) {
      const std::string name = failing.function;
      const bool lacksSpace = &failing - kFailing >= 10;
      std::string printed;
      for (int nth = 1; failing.run(nth, false, [&] { printed = Printed(); }); ++nth) {
        CHECK(printed == name.substr(0, name.find('W')) +
                             (lacksSpace ? "() failed.Error 1234\n" : "() failed. Error 1234\n"));
        CHECK(list == before);
      }
      CHECK(printed == "");
      CHECK(std::exchange(list, before) != before);
    }
    const ReplacedExport refused(
        "SetSecurityDescriptorControl", +[](void*, WORD, WORD) {
          SetLastError(kFailure);
          return FALSE;
        });
    CHECK(Printed() == "SetSecurityDescriptorControl() failed.Error 1234\n");
    const ReplacedExport missing("SetSecurityDescriptorControl", nullptr);
    CHECK(Printed() == "");
    CHECK(list != before);
    // Tries an ACL that extends past its security descriptor, then an ACE past the end of its ACL.
    for (WORD ACL::* const field : {&ACL::AclSize, &ACL::AceCount}) {
      REPLACE(GetSecurityDescriptorDacl,
              [&](auto original, auto from, auto has, ACL** dacl, auto flag) {
                const BOOL read = original(from, has, dacl, flag);
                (*dacl)->*field += 1;
                return read;
              });
      CHECK(Printed() == "GetAclInformation() failed. Error 1336\n");
    }
  });
  REPLACE(GetFileSecurityW, [](auto...) { return TRUE; });
  CHECK(Printed() == "");
}
