#pragma once

#include <functional>
#include <map>

#include "lib/string/format_text.h"
#include "lib/trace/trace_sink.h"
#include "tests/security/test_acl.h"
#include "tests/support/failing_call.h"

namespace kelvo::test {

// The operation under test and what it has traced, without the traces of others that it calls.
inline std::wstring operation, traced;

// Makes each call that an operation makes to these functions fail, and then throw, one at a time.
// As a rule the operation then fails and names a call that failed, but not one that threw; a last
// message comes from its clean-up, except where it fails at once. The text has each outcome of each
// operation with the first call of each function that leads to it. `prepare` runs before each.
inline std::wstring RecordFailures(
    const std::vector<FailingCall>& functions,
    const std::vector<std::pair<const wchar_t*, std::function<bool()>>>& operations,
    const std::function<void()>& prepare) {
  SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
    const std::wstring text = tag == std::wstring(L"RunAsEx") ? message : L"a wrong tag";
    traced += text.starts_with(operation + L" ") ? L"," + text.substr(operation.length()) : L"";
    throw 1;  // is the sink's own trouble
  });
  std::map<std::wstring, std::map<std::wstring, std::wstring>> outcomes;
  for (const auto& [name, succeeds] : operations) {
    operation = name;
    const auto isReached = [&](const FailingCall& failing, int nth, bool throws) {
      prepare();
      traced.clear();
      bool succeeded = false;
      const bool wasReached = failing.run(nth, throws, [&] { succeeded = succeeds(); });
      if (!wasReached && succeeded) {
        return false;
      }
      std::wstring outcome = succeeded ? L"succeeds" : L"fails at once";
      const std::wstring cleanUp = L", exception caught in __finally";
      if (!succeeded && traced.ends_with(cleanUp)) {
        outcome = L"fails";
        traced.erase(traced.length() - cleanUp.length());
      }
      const WString named = throws ? L"" : FormatText(L", %hs Failed", failing.function);
      const bool isRule = wasReached && !succeeded && traced == named.c_str();
      outcome += isRule ? L" as a rule" : traced;
      std::wstring& calls = outcomes[name][outcome + (wasReached && throws ? L" (thrown)" : L"")];
      const WString call = FormatText(L" %hs-", failing.function);
      if (wasReached && calls.find(call.c_str()) == std::wstring::npos) {
        calls += call.c_str() + std::to_wstring(nth);
      }
      return wasReached;
    };
    for (const FailingCall& failing : functions) {
      for (const bool throws : {false, true}) {
        for (int nth = 1; isReached(failing, nth, throws); ++nth) {
        }
      }
    }
  }
  SetTraceSink(nullptr);
  TraceMessage(L"nobody", L"listens");
  std::wstring seen;
  for (const auto& [name, ofName] : outcomes) {
    seen += name + L"\n";
    for (const auto& [outcome, calls] : ofName) {
      const bool isLong = outcome.length() + calls.length() > 115;
      seen += L"    " + outcome + (isLong ? L":\n       " : L":") + calls + L"\n";
    }
  }
  return seen;
}

}  // namespace kelvo::test
