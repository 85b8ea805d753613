#include "status/answer.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lib/certificates/certificate_import.h"
#include "lib/paths/file_exists.h"
#include "lib/platform/owned.h"
#include "lib/string/visible_text.h"
#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/system_version_string.h"
#include "lib/sysinfo/vista_elevation.h"
#include "lib/ui/utf8_output.h"
#include "status/application_status.h"
#include "status/certificate_status.h"
#include "status/command_line.h"
#include "status/driver_package_status.h"
#include "status/report.h"
#include "status/service_status.h"
#include "tool/library_search.h"

namespace kelvo {

namespace {

enum ExitCode : int {
  kAllPresent = 0,
  kSomethingAbsent = 1,
  kWrongCommandLine = 2,
  kSomethingUnknown = 3
};

struct StoreKind {
  const char* kind;
  const wchar_t* storeName;
};

constexpr StoreKind kPublisher = {"publisher", kTrustedPublisherStore};
constexpr StoreKind kIntermediate = {"intermediate", kIntermediateCaStore};

// Returns the item for difxapi.dll, without loading the library.
Item QueryInterface() {
  constexpr const char* kKind = "interface";
  constexpr const wchar_t* kLibrary = L"difxapi.dll";
  const WString path = LibraryPath(kLibrary);
  if (!FileExists(path.c_str())) {
    return {kKind, State::kAbsent, kLibrary, {}};
  }
  std::array<wchar_t, kFileVersionStringCapacity> version{};
  GetFileVersionString(version.data(), path.c_str());
  return {kKind, State::kPresent, path, {TextDetail("version", L"version", version.data())}};
}

// Stores whether the process's token contains the Administrators group. Returns ERROR_SUCCESS, or
// the last error when the token cannot be read. Like IsAdmin (lib/sysinfo/administrators.h),
// ignores the group's attributes: a deny-only group also counts. Unlike IsAdmin, does not fail when
// the token's groups take more than 1,024 bytes.
DWORD QueryAdministrator(bool& isAdministrator) {
  OwnedKernelObject token;
  DWORD size = 0;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive()) == FALSE) {
    return GetLastError();
  }
  GetTokenInformation(token.get(), TokenGroups, nullptr, 0, &size);
  std::vector<std::byte> buffer(std::max<std::size_t>(size, sizeof(TOKEN_GROUPS)));
  if (GetTokenInformation(token.get(), TokenGroups, buffer.data(), size, &size) == FALSE) {
    return GetLastError();
  }
  const auto& groups = *reinterpret_cast<const TOKEN_GROUPS*>(buffer.data());
  isAdministrator = std::ranges::any_of(
      std::span(&groups.Groups[0], groups.GroupCount), [](const SID_AND_ATTRIBUTES& group) {
        return IsWellKnownSid(group.Sid, WinBuiltinAdministratorsSid) != FALSE;
      });
  return ERROR_SUCCESS;
}

Item QuerySystem() {
  WString name = GetSystemVersionString();
  if (name.find(L"(") == 0) {
    // On Windows 10 and later, GetSystemVersionString returns no name: only the version numbers, in
    // parentheses.
    name = L"Windows " + name;
  }
  const WString numbers = GetSystemVersionNumbers();
  const std::wstring_view inParentheses = numbers;
  const std::size_t first = inParentheses.find_first_not_of(L'(');
  const std::size_t last = inParentheses.find_last_not_of(L')');
  Item item{"system", State::kInfo, name, {}};
  item.details.push_back({"version", WString(inParentheses.substr(first, last + 1 - first)), {}});
  bool isAdministrator = false;
  if (const DWORD error = QueryAdministrator(isAdministrator)) {
    item.state = State::kUnknown;
    AddError(item, "error", {}, error);
  } else {
    item.details.push_back({"administrator", isAdministrator,
                            isAdministrator ? L"administrator" : L"not an administrator"});
  }
  const bool isElevated = IsVistaProcessElevated();
  item.details.push_back({"elevated", isElevated, isElevated ? L"elevated" : L"not elevated"});
  return item;
}

void AppendCertificates(const StoreKind& store, const std::vector<WString>& files,
                        std::vector<Item>& items) {
  for (const WString& file : files) {
    items.push_back(QueryCertificate(store.kind, file, store.storeName));
  }
}

std::vector<Item> AnswerInGeneral() {
  std::vector<Item> items = QueryApplications({});
  items.push_back(QueryStore(kPublisher.kind, kPublisher.storeName));
  items.push_back(QueryStore(kIntermediate.kind, kIntermediate.storeName));
  // Does not search for the service's device: the search is slow because it loads setupapi.dll.
  items.push_back(QueryService(DeviceSearch::kNone));
  items.push_back(QueryInterface());
  items.push_back(QuerySystem());
  return items;
}

std::vector<Item> Answer(const Questions& questions) {
  if (questions.IsGeneral()) {
    return AnswerInGeneral();
  }
  std::vector<Item> items;
  if (!questions.applications.empty()) {
    items = QueryApplications(questions.applications);
  }
  AppendCertificates(kPublisher, questions.publishers, items);
  AppendCertificates(kIntermediate, questions.intermediates, items);
  for (const WString& inf : questions.driverPackages) {
    items.push_back(QueryDriverPackage(inf));
  }
  if (questions.service) {
    items.push_back(QueryService(DeviceSearch::kBluetoothBus));
  }
  return items;
}

int ExitCodeOf(State worst) {
  switch (worst) {
    case State::kInfo:
    case State::kPresent:
      return kAllPresent;
    case State::kAbsent:
      return kSomethingAbsent;
    case State::kUnknown:
      break;
  }
  return kSomethingUnknown;
}

int Write(std::string_view text, int exitCode) {
  HANDLE const output = GetStdHandle(STD_OUTPUT_HANDLE);
  if (output == nullptr || output == INVALID_HANDLE_VALUE) {
    return exitCode;
  }
  return WriteUtf8(STD_OUTPUT_HANDLE, text) ? exitCode : kSomethingUnknown;
}

int Run(int count, const wchar_t* const* arguments) {
  const CommandLine line = ParseCommandLine(count, arguments);
  switch (line.kind) {
    case CommandLine::Kind::kHelp:
      return Write(UsageText(), kAllPresent);
    case CommandLine::Kind::kVersion:
      return Write("sorrel_status " KELVO_VERSION "\n", kAllPresent);
    case CommandLine::Kind::kWrong:
      WriteUtf8(STD_ERROR_HANDLE, ToVisibleUtf8(line.mistake) + "\n\n" + UsageText());
      return kWrongCommandLine;
    case CommandLine::Kind::kQuestions:
      break;
  }
  const std::vector<Item> items = Answer(line.questions);
  return Write(line.asJson ? JsonReport(items) : TextReport(items), ExitCodeOf(WorstState(items)));
}

}  // namespace

int AnswerCommandLine(int count, const wchar_t* const* arguments) {
  try {
    return Run(count, arguments);
  } catch (const std::exception&) {
    // Calls WriteFile directly, because WriteUtf8 allocates memory.
    constexpr std::string_view kText = "sorrel_status: not enough memory\r\n";
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), kText.data(), static_cast<DWORD>(kText.length()),
              &written, nullptr);
    return kSomethingUnknown;
  }
}

}  // namespace kelvo
