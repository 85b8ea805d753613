#pragma once

#include <windows.h>

#include <optional>
#include <utility>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// What a question to Windows gave, or that an exception, structured ones included, cut it short:
// the answer then throws in whoever needs it. So a line made of answers breaks off where it would
// have with the questions asked on the way, and asking stays apart from deciding.
template <typename Value>
class Answer {
 public:
  Answer() : value_(std::in_place) {}
  // NOLINTNEXTLINE(google-explicit-constructor): a value is an answer
  Answer(Value value) : value_(std::in_place, std::move(value)) {}
  static Answer Raised() {
    Answer raised;
    raised.value_.reset();
    return raised;
  }

  [[nodiscard]] const Value& Get() const {
    if (!value_) {
      throw std::bad_optional_access();
    }
    return *value_;
  }

 private:
  std::optional<Value> value_;
};

// Which of its two records GetVersionExW filled: the extended one of 284 bytes, or the short one of
// 276, which leaves service pack numbers, suites and product type zero.
enum class VersionRecord { kExtended, kShort, kNone };

// The value "ProductType" of the registry key "ProductOptions".
struct ProductOption {
  enum class State { kRead, kNoKey, kNoValue };
  State state = State::kRead;
  WString productType;
};

// All that the text about the running Windows is made of. Answers that a release's text does not
// need are not asked for.
struct SystemFacts {
  VersionRecord record = VersionRecord::kExtended;
  OSVERSIONINFOEXW version{};
  WORD architecture = PROCESSOR_ARCHITECTURE_AMD64;
  // NT 5.1: the first of SM_STARTER, SM_MEDIACENTER and SM_TABLETPC that GetSystemMetrics knows as
  // not zero; NT 5.2: SM_SERVERR2 likewise; 0 for none.
  Answer<int> metric;
  // NT 6: the type of GetProductInfo, nothing where Windows does not have the function.
  Answer<std::optional<DWORD>> product;
  // NT without the extended record.
  Answer<ProductOption> productOption;
  // NT 4: whether the registry key of the hotfix that makes Service Pack 6 a 6a opens.
  Answer<bool> hasHotfixQ246009;
};

// Fills `version`, from zero, with the extended record or, failing that, with the short one.
VersionRecord QueryVersionRecord(OSVERSIONINFOEXW& version);

// Asks the running Windows. An exception in QueryVersionRecord or in the query of the processor
// goes through. Where "ProductType" cannot be read, its key stays open.
SystemFacts AskSystemFacts();

}  // namespace kelvo::internal
