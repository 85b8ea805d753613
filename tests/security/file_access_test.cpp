#include "lib/security/file_access.h"

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

#include <cstring>

#include "lib/platform/owned.h"
#include "lib/security/ace_replacement.h"
#include "tests/support/catch.h"
#include "tests/support/dacl_text.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_folder.h"

namespace kelvo {

namespace {

int callsUntilFailure = 0;

struct FailOnce {
  template <typename... Given>
  auto operator()(auto original, Given... given) const {
    SetLastError(1234);
    return callsUntilFailure-- == 0 ? decltype(original(given...)){} : original(given...);
  }
};

BOOL LetAdministratorsIn() { return AddFileAccessRights(L"file", L"BA", FILE_ALL_ACCESS); }

// Runs an attempt on a file whose access list, as text, is `list`, and returns what it printed. Not
// a real file: Wine keeps only the mode bits of a list.
std::string PrintedBy(BOOL (*attempt)(), std::wstring& list) {
  BOOL isWritten = FALSE;
  const auto read = KELVO_REPLACE_IMPORT(GetFileSecurityW, [&](auto, auto, auto, void* descriptor,
                                                               DWORD length, DWORD* needed) {
    OwnedLocalMemory<void> made;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), 1, made.Receive(), needed);
    const bool fits = length >= *needed;
    std::memcpy(descriptor, made.get(), fits ? *needed : 0);
    made.reset();
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return fits ? TRUE : FALSE;
  });
  const auto write = KELVO_REPLACE_IMPORT(SetFileSecurityW, [&](auto, auto, auto, void* given) {
    OwnedLocalMemory<wchar_t> text;
    ConvertSecurityDescriptorToStringSecurityDescriptorW(given, 1, 4, text.Receive(), nullptr);
    list = text.get();
    return isWritten = TRUE;
  });
  const test::ScratchFolder folder;
  const int console = _dup(1);
  const int file = _wopen((folder.Path() / "output").c_str(), _O_CREAT | _O_WRONLY, 0600);
  _dup2(file, 1);
  CHECK(attempt() == isWritten);
  std::fflush(stdout);
  _dup2(console, 1);
  _close(console);
  _close(file);
  return test::ReadBytes(folder.Path() / "output");
}

}  // namespace

TEST_CASE("an account's explicit entries give way to the new one") {
  const AceFacts other{false, false};
  const AceFacts own{false, true};
  const AceFacts inherited{true, true};
  CHECK(ReplaceAcesOfAccount({}) == std::vector{kAddedAce});
  CHECK(ReplaceAcesOfAccount({own, other, own, inherited}) == std::vector{1UL, kAddedAce, 3UL});
  CHECK(ReplaceAcesOfAccount({inherited, own, other}) == std::vector{kAddedAce, 0UL, 1UL, 2UL});
}

TEST_CASE("a file's list keeps its other entries and its inheritance, once and again") {
  for (auto [list, result] :
       {std::pair<std::wstring, std::wstring>{L"O:BA", L"D:(A;;FA;;;BA)"},
        {L"D:(A;;FR;;;BA)(D;;FW;;;BG)(A;ID;FR;;;BA)", L"D:(D;;FW;;;BG)(A;;FA;;;BA)(A;ID;FR;;;BA)"},
        {L"D:P(D;;FW;;;BA)(A;;FR;;;WD)", L"D:P(A;;FR;;;WD)(A;;FA;;;BA)"},
        {L"D:PAI(A;ID;FR;;;WD)", L"D:ARAI(A;;FA;;;BA)(A;ID;FR;;;WD)"}}) {
    for (int time = 0; time < 2; ++time) {
      CHECK(PrintedBy(LetAdministratorsIn, list).empty());
      CHECK(list == result);
    }
  }
}

TEST_CASE("a real file is opened to everyone") {
  const test::ScratchFolder folder;
  const auto path = folder.Write("file", "");
  const auto list = [&path] {
    const OwnedFile file(
        CreateFileW(path.c_str(), READ_CONTROL, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    return test::ReadDacl(file.get(), SE_FILE_OBJECT);
  };
  const std::wstring before = list();
  REQUIRE(AddFileAccessRights(path.c_str(), L"WD", FILE_ALL_ACCESS) == TRUE);
  CHECK((list() != before && list().find(L";;;WD)") != std::wstring::npos));
}

// An attempt in which one call of a function fails with the error 1234, and what it prints.
#define FAILING(function, suffix, gap)                                                         \
  std::pair<BOOL (*)(), std::string>{[] {                                                      \
                                       const auto failing =                                    \
                                           KELVO_REPLACE_IMPORT(function##suffix, FailOnce{}); \
                                       return LetAdministratorsIn();                           \
                                     },                                                        \
                                     #function "() failed." gap "Error 1234\r\n"}

TEST_CASE("each failing call is named and leaves the file alone") {
  const std::wstring before = L"D:AI(A;;FR;;;WD)(A;ID;FR;;;WD)";
  std::wstring list = before;
  for (const auto& [attempt, message] :
       {FAILING(GetFileSecurity, W, " "), FAILING(HeapAlloc, , " "),
        FAILING(InitializeSecurityDescriptor, , ""), FAILING(GetSecurityDescriptorDacl, , " "),
        FAILING(GetAclInformation, , " "), FAILING(InitializeAcl, , " "), FAILING(GetAce, , " "),
        FAILING(AddAce, , " "), FAILING(AddAccessAllowedAce, , " "),
        FAILING(SetSecurityDescriptorDacl, , " "), FAILING(GetSecurityDescriptorControl, , ""),
        FAILING(SetFileSecurity, W, " ")}) {
    // The first call, then the second, until there is none left to fail.
    for (int call = 0; list == before; ++call) {
      callsUntilFailure = call;
      const std::string printed = PrintedBy(attempt, list);
      CHECK(printed == (call == 0 || list == before ? message : ""));
    }
    list = before;
  }
  CHECK(AddFileAccessRights(L"file", L"no SID", 1) == FALSE);
  auto* const refuse = +[](void*, WORD, WORD) { return SetLastError(1234), FALSE; };
  const test::ReplacedExport refused("SetSecurityDescriptorControl",
                                     reinterpret_cast<void*>(refuse));
  CHECK(PrintedBy(LetAdministratorsIn, list) ==
        "SetSecurityDescriptorControl() failed.Error 1234\r\n");
  const test::ReplacedExport missing("SetSecurityDescriptorControl", nullptr);
  CHECK(PrintedBy(LetAdministratorsIn, list).empty());
}

TEST_CASE("a malformed list does no harm") {
  // Its one entry states 13 bytes where 12 are left.
  std::array<WORD, 10> words{ACL_REVISION, 20, 1, 0, 0, 13};
  const auto found = KELVO_REPLACE_IMPORT(GetSecurityDescriptorDacl,
                                          [&](auto, auto, BOOL* present, ACL** dacl, auto) {
                                            *dacl = reinterpret_cast<ACL*>(words.data());
                                            return *present = TRUE;
                                          });
  std::wstring list = L"D:";
  CHECK(PrintedBy(LetAdministratorsIn, list) == "GetAclInformation() failed. Error 1336\r\n");
}

}  // namespace kelvo
