#include "lib/security/file_access.h"

#include <cstring>

#include "tests/security/test_acl.h"
#include "tests/support/failing_call.h"
#include "tests/support/testing.h"

// Lets administrators into a file whose access list, as text, is `list`, and returns what that
// printed. Not a real file: Wine keeps only the mode bits of a list.
static std::string PrintedBy(std::wstring& list) {
  BOOL isWritten = FALSE;
  REPLACE(GetFileSecurityW, [&](auto, auto, auto, void* descriptor, DWORD length, DWORD* size) {
    const OwnedLocalMemory<void> made = FromSddl(list, size);
    std::memcpy(descriptor, made.get(), length >= *size ? *size : 0);
    return SetLastError(ERROR_INSUFFICIENT_BUFFER), length >= *size ? TRUE : FALSE;
  });
  REPLACE(SetFileSecurityW, [&](auto, auto, auto, void* descriptor) {
    return list = ToSddl(descriptor), isWritten = TRUE;
  });
  char printed[4096] = "";
  std::setvbuf(stdout, printed, _IOFBF, sizeof(printed));
  CHECK(AddFileAccessRights(L"file", L"BA", FILE_ALL_ACCESS) == isWritten);
  std::string text = printed;
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  return text;
}

TEST_CASE("an account's explicit entries give way to the new one, once and again") {
  for (auto [list, result] :
       {std::pair<std::wstring, std::wstring>{L"none", L"D:(A;;FA;;;BA)"},
        {L"D:(A;;FR;;;BA)(D;;FW;;;BG)(A;ID;FR;;;BA)", L"D:(D;;FW;;;BG)(A;;FA;;;BA)(A;ID;FR;;;BA)"},
        {L"D:(A;ID;FR;;;WD)(A;;FR;;;BA)", L"D:(A;;FA;;;BA)(A;ID;FR;;;WD)(A;;FR;;;BA)"},
        {L"D:P(D;;FW;;;BA)(A;;FR;;;WD)", L"D:P(A;;FR;;;WD)(A;;FA;;;BA)"},
        {L"D:PAI(A;ID;FR;;;WD)", L"D:ARAI(A;;FA;;;BA)(A;ID;FR;;;WD)"}}) {
    for (int time = 0; time < 2; ++time) {
      CHECK((PrintedBy(list).empty() && list == result));
    }
  }
  const ScratchFolder folder;
  const std::wstring path = folder.Write("file", "");
  const OwnedFile file(
      CreateFileW(path.c_str(), READ_CONTROL, 7, nullptr, OPEN_EXISTING, 0, nullptr));
  const std::wstring before = ReadDacl(file.get());
  REQUIRE(AddFileAccessRights(path.c_str(), L"WD", FILE_ALL_ACCESS) == TRUE);
  const std::wstring after = ReadDacl(file.get());
  CHECK((after != before && after.find(L";;;WD)") != std::wstring::npos));
  CHECK(AddFileAccessRights(path.c_str(), L"no SID", 1) == FALSE);
}

TEST_CASE("each failing call is named and leaves the file alone") {
  const std::pair<FailingCall, std::string> rows[] = {
      {SETS_LAST_ERROR(GetFileSecurityW), "GetFileSecurity() failed. "},
      {SETS_LAST_ERROR(HeapAlloc), "HeapAlloc() failed. "},
      {SETS_LAST_ERROR(InitializeSecurityDescriptor), "InitializeSecurityDescriptor() failed."},
      {SETS_LAST_ERROR(GetSecurityDescriptorDacl), "GetSecurityDescriptorDacl() failed. "},
      {SETS_LAST_ERROR(GetAclInformation), "GetAclInformation() failed. "},
      {SETS_LAST_ERROR(InitializeAcl), "InitializeAcl() failed. "},
      {SETS_LAST_ERROR(GetAce), "GetAce() failed. "},
      {SETS_LAST_ERROR(AddAce), "AddAce() failed. "},
      {SETS_LAST_ERROR(AddAccessAllowedAce), "AddAccessAllowedAce() failed. "},
      {SETS_LAST_ERROR(SetSecurityDescriptorDacl), "SetSecurityDescriptorDacl() failed. "},
      {SETS_LAST_ERROR(GetSecurityDescriptorControl), "GetSecurityDescriptorControl() failed."},
      {SETS_LAST_ERROR(SetFileSecurityW), "SetFileSecurity() failed. "}};
  const std::wstring before = L"D:AI(A;;FR;;;WD)(A;ID;FR;;;WD)";
  std::wstring list = before;
  for (const auto& [failing, message] : rows) {
    std::string printed;
    for (int nth = 1; failing.run(nth, false, [&] { printed = PrintedBy(list); }); ++nth) {
      CHECK((printed == message + "Error 1234\n" && list == before));
    }
    CHECK((printed.empty() && std::exchange(list, before) != before));
  }
  const ReplacedExport refused(
      "SetSecurityDescriptorControl", +[](void*, WORD, WORD) { return SetLastError(1234), FALSE; });
  CHECK(PrintedBy(list) == "SetSecurityDescriptorControl() failed.Error 1234\n");
  const ReplacedExport missing("SetSecurityDescriptorControl", nullptr);
  CHECK((PrintedBy(list).empty() && list != before));
  // Its one entry states 13 bytes where 12 are left.
  std::array<WORD, 10> words{ACL_REVISION, 20, 1, 0, 0, 13};
  REPLACE(GetSecurityDescriptorDacl, [&](auto, auto, BOOL* present, ACL** dacl, auto) {
    *dacl = reinterpret_cast<ACL*>(words.data());
    return *present = TRUE;
  });
  CHECK(PrintedBy(list) == "GetAclInformation() failed. Error 1336\n");
}
