#include <set>

#include "lib/platform/owned.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/token_information.h"
#include "lib/security/token_privileges.h"
#include "tests/support/catch.h"
#include "tests/support/dacl_text.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

namespace {

DWORD AttributesOf(const wchar_t* privilege) {
  OwnedKernelObject token;
  LUID luid{};
  LookupPrivilegeValueW(nullptr, privilege, &luid);
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  const OwnedLocalMemory<void> held(GetFromToken(token.get(), TokenPrivileges));
  const auto& privileges = *static_cast<TOKEN_PRIVILEGES*>(held.get());
  for (DWORD index = 0; index < privileges.PrivilegeCount; ++index) {
    if (privileges.Privileges[index].Luid.LowPart == luid.LowPart) {
      return privileges.Privileges[index].Attributes;
    }
  }
  return MAXDWORD;
}

}  // namespace

TEST_CASE("a privilege of the process is switched on and off") {
  for (const BOOL enable : {TRUE, FALSE, TRUE}) {
    CHECK(EnablePrivilege(L"SeShutdownPrivilege", enable) == TRUE);
    CHECK((AttributesOf(L"SeShutdownPrivilege") & SE_PRIVILEGE_ENABLED) == (enable ? 2 : 0));
  }
  CHECK(EnablePrivilege(L"SeNoSuchPrivilege", TRUE) == FALSE);
  CHECK(EnablePrivilege(L"SeCreateTokenPrivilege", TRUE) == TRUE);
}

TEST_CASE("a privilege set holds the names that the system knows") {
  const wchar_t* const some[] = {L"SeNoSuchPrivilege", L"SeDebugPrivilege", L"", L"SeTcbPrivilege",
                                 nullptr};
  const struct {
    const wchar_t* const* names;
    BOOL useBuiltIn;
    DWORD count;
    std::size_t distinct;
  } cases[] = {{nullptr, TRUE, 28, 25},
               {some, TRUE, 28, 25},
               {some, FALSE, 2, 2},
               {some + 4, FALSE, 0, 0},
               {nullptr, FALSE, 0, 0}};
  for (const auto& row : cases) {
    DWORD count = MAXDWORD;
    const OwnedLocalMemory<TOKEN_PRIVILEGES> set(
        CreateTokenPriv(&count, row.names, row.useBuiltIn));
    REQUIRE(set);
    CHECK(count == row.count);
    CHECK(set.get()->PrivilegeCount == row.count);
    CHECK(LocalSize(set.get()) == 4 + 12 * row.count);
    std::set<DWORD> distinct;
    for (DWORD index = 0; index < count; ++index) {
      CHECK(set.get()->Privileges[index].Attributes == 3);
      distinct.insert(set.get()->Privileges[index].Luid.LowPart);
    }
    CHECK(distinct.size() == row.distinct);
  }
}

TEST_CASE("the current user is granted a mask on a kernel object, and no buffer is released") {
  int released = 0;
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  test::WriteDacl(event.get(), L"D:(D;;CC;;;NS)(A;;CC;;;WD)", SE_KERNEL_OBJECT);
  {
    const auto counting = KELVO_REPLACE_IMPORT(LocalFree, [&](auto original, HLOCAL block) {
      released += block != nullptr ? 1 : 0;
      return original(block);
    });
    CHECK(ModifySecurity(event.get(), EVENT_MODIFY_STATE) == TRUE);
  }
  CHECK(released == 0);
  // Where among the others it stands is up to Windows.
  const std::wstring dacl = test::ReadDacl(event.get(), SE_KERNEL_OBJECT);
  for (const std::wstring& entry : {L"(A;;DC;;;" + test::CurrentUserSid() + L")",
                                    std::wstring(L"(D;;CC;;;NS)"), std::wstring(L"(A;;CC;;;WD)")}) {
    CAPTURE(dacl, entry);
    CHECK(dacl.find(entry) != std::wstring::npos);
  }
}

}  // namespace kelvo
