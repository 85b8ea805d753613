// Compares the library's string functions with alternatives. Also measures the size of sorrel.exe
// and how long sorrel.exe takes to start and end.
//
// The output consists of groups and, at the end, the size of sorrel.exe. Each group compares
// several contenders, such as functions, and has one line for each contender. The line shows the
// contender's median time in milliseconds, and the ratio of this time to the first contender's
// time. In a group that compares functions, the first contender is the library's function. All
// contenders of a group run once, then all of them run again, and so on.
//
// The title of a group may state a goal. The goal "_wcsicmp at least 1" means that the ratio of the
// contender _wcsicmp should be at least 1. A goal may give limits for several contenders. If a goal
// names no contender, its limit applies to the second contender.

#include <windows.h>

#include <algorithm>
#include <array>
#include <boost/algorithm/string.hpp>
#include <boost/tokenizer.hpp>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ranges>
#include <string>
#include <utility>
#include <vector>

#include "lib/platform/owned.h"
#include "lib/string/compare_no_case.h"
#include "lib/string/string_tokenizer.h"
#include "lib/string/text_routines.h"
#include "lib/ui/text_substitution.h"

namespace {

using kelvo::WString;

constexpr std::size_t kRuns = 21;

// Keeps the compiler from optimizing the measured work away.
volatile std::size_t sink = 0;

struct Contender {
  const char* name;
  std::function<std::size_t()> work;
};

double Milliseconds(const std::function<std::size_t()>& work) {
  const auto start = std::chrono::steady_clock::now();
  sink = sink + work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

void Measure(const char* title, const std::vector<Contender>& contenders) {
  std::vector<std::array<double, kRuns>> times(contenders.size());
  for (std::size_t run = 0; run < kRuns; ++run) {
    for (std::size_t index = 0; index < contenders.size(); ++index) {
      times.at(index).at(run) = Milliseconds(contenders.at(index).work);
    }
  }
  std::printf("\n%s\n", title);
  double ours = 0;
  for (std::size_t index = 0; index < contenders.size(); ++index) {
    auto& sorted = times.at(index);
    std::ranges::sort(sorted);
    const double median = sorted.at(kRuns / 2);
    ours = index == 0 ? median : ours;
    std::printf("  %-44s %9.3f ms %7.2f\n", contenders.at(index).name, median, median / ours);
  }
}

std::wstring Repeated(const std::wstring& text, int times) {
  std::wstring all;
  for (int i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}

std::size_t Walk(kelvo::StringTokenizer& items) {
  std::size_t units = 0;
  while (items.HasMoreTokens()) {
    units += items.NextToken().length();
  }
  return units;
}

std::size_t WalkItems(const wchar_t* item, int items) {
  kelvo::StringTokenizer tokenizer(WString(Repeated(item, items)), L";", true);
  return Walk(tokenizer);
}

std::size_t BareLoop(const std::wstring& list, bool collapse) {
  std::size_t units = 0;
  for (std::size_t start = 0; start < list.length();) {
    const std::size_t end = std::min(list.find(L';', start), list.length());
    if (!collapse || end > start) {
      units += list.substr(start, end - start).length();
    }
    start = end + 1;
  }
  return units;
}

std::size_t BoostSplit(const std::wstring& list, boost::algorithm::token_compress_mode_type mode) {
  std::vector<std::wstring> items;
  boost::split(items, list, [](wchar_t unit) { return unit == L';'; }, mode);
  return items.size();
}

// Returns a function that calls `work` with a different copy of `input` in each run, because `work`
// changes its argument. The returned function itself neither makes nor frees a copy: all copies are
// made before the first run and kept until the last run has ended. Otherwise, the measured times
// would include the allocation and the freeing of the copies.
template <typename Input, typename Work>
std::function<std::size_t()> WithOwnInput(const Input& input, Work work) {
  return [work, inputs = std::make_shared<std::vector<Input>>(kRuns, input), run = 0U]() mutable {
    return work(inputs->at(run++));
  };
}

std::function<std::size_t()> WalkOwnInput(const std::wstring& list, bool collapse) {
  using Input = std::pair<WString, std::optional<kelvo::StringTokenizer>>;
  return WithOwnInput(Input(WString(list), std::nullopt), [collapse](Input& own) {
    return Walk(own.second.emplace(std::move(own.first), L";", collapse));
  });
}

void MeasureSplitting(const std::wstring& list) {
  Measure("split 100,000 items with collapse (goal: bare loop at least 0.67, boost::* above 1)",
          {{"StringTokenizer", WalkOwnInput(list, true)},
           {"find and substr in a bare loop", [&] { return BareLoop(list, true); }},
           {"views::split into std::wstring",
            [&] {
              std::size_t units = 0;
              for (const auto part : std::views::split(list, L';')) {
                units += std::wstring(part.begin(), part.end()).length();
              }
              return units;
            }},
           {"boost::tokenizer",
            [&] {
              const boost::char_separator<wchar_t> separator(L";");
              const boost::tokenizer<boost::char_separator<wchar_t>, std::wstring::const_iterator,
                                     std::wstring>
                  items(list, separator);
              std::size_t units = 0;
              for (const std::wstring& item : items) {
                units += item.length();
              }
              return units;
            }},
           {"boost::split", [&] { return BoostSplit(list, boost::token_compress_on); }}});
  Measure("split 100,000 items without collapse",
          {{"StringTokenizer", WalkOwnInput(list, false)},
           {"find and substr in a bare loop", [&] { return BareLoop(list, false); }},
           {"boost::split", [&] { return BoostSplit(list, boost::token_compress_off); }}});
}

Contender Ordinal(const std::wstring& a, const std::wstring& b) {
  return {
      "CompareStringOrdinal", [&] {
        return static_cast<std::size_t>(CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE));
      }};
}

void MeasureComparison(const char* title, const std::wstring& a, const std::wstring& b,
                       bool isAscii) {
  std::vector<Contender> contenders = {
      {"CompareNoCase",
       [&] { return static_cast<std::size_t>(kelvo::CompareNoCase(a.c_str(), b.c_str())); }},
      Ordinal(a, b),
      {"lstrcmpiW", [&] { return static_cast<std::size_t>(lstrcmpiW(a.c_str(), b.c_str())); }}};
  if (isAscii) {
    contenders.push_back(
        {"_wcsicmp", [&] { return static_cast<std::size_t>(_wcsicmp(a.c_str(), b.c_str())); }});
    contenders.push_back({"boost::iequals", [&] { return boost::iequals(a, b) ? 0U : 1U; }});
  }
  Measure(title, contenders);
}

void MeasureShortNames() {
  static constexpr int kTimes = 100'000;
  const auto repeat = [](auto compare) {
    return [compare] {
      std::size_t sum = 0;
      for (int i = 0; i < kTimes; ++i) {
        sum += static_cast<std::size_t>(compare(L"Brindle Player", L"brindle player"));
      }
      return sum;
    };
  };
  Measure("compare a short name 100,000 times (goal: _wcsicmp at least 1)",
          {{"CompareNoCase", repeat(kelvo::CompareNoCase)},
           {"_wcsicmp", repeat([](auto a, auto b) { return _wcsicmp(a, b); })},
           {"lstrcmpiW", repeat([](auto a, auto b) { return lstrcmpiW(a, b); })}});
}

void MeasureReplacing(const std::wstring& text) {
  std::wstring buffer = text;
  buffer.resize(text.length() * 2);
  Measure(
      "replace 50,000 matches (goal: boost::* above 1)",
      {{"ReplaceAll",
        WithOwnInput(WString(text),
                     [](WString& own) { return kelvo::ReplaceAll(own, L"kite", L"heron"); })},
       {"ReplaceAllInBuffer", WithOwnInput(buffer,
                                           [](std::wstring& own) {
                                             return std::size_t{kelvo::ReplaceAllInBuffer(
                                                                    own.data(), own.length(),
                                                                    L"kite", L"heron") != FALSE};
                                           })},
       {"boost::replace_all_copy",
        [&] { return boost::replace_all_copy(text, L"kite", L"heron").length(); }},
       {"boost::replace_all", WithOwnInput(text, [](std::wstring& own) {
          boost::replace_all(own, L"kite", L"heron");
          return own.length();
        })}});
}

// Measures whether the time grows linearly: twice the input should take about twice as long.
void MeasureGrowth() {
  const auto growth = [](const char* title, const std::function<std::size_t(int)>& work) {
    Measure(title, {{"100,000", [&] { return work(100'000); }},
                    {"200,000", [&] { return work(200'000); }}});
  };
  growth("StringTokenizer, twice the items (goal: at most 2.3)",
         [](int items) { return WalkItems(L"brindle;", items); });
  growth("StringTokenizer, a run of delimiters twice as long (goal: at most 2.3)",
         [](int items) { return WalkItems(L";;;;;;;;", items); });
  growth("CompareNoCase, twice the length (goal: at most 2.3)", [](int items) {
    return static_cast<std::size_t>(kelvo::CompareNoCase(
        Repeated(L"Brindle\u0416", items).c_str(), Repeated(L"bRINDLE\u0436", items).c_str()));
  });
  growth("ReplaceAll, twice the matches (goal: at most 2.3)", [](int items) {
    WString text(Repeated(L"brindle;", items));
    return kelvo::ReplaceAll(text, L"rind", L"heron");
  });
}

std::size_t Start(const std::filesystem::path& program) {
  std::wstring commandLine = L"\"" + program.wstring() + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &started) != FALSE) {
    const kelvo::OwnedKernelObject process(started.hProcess);
    const kelvo::OwnedKernelObject thread(started.hThread);
    WaitForSingleObject(process.get(), INFINITE);
  }
  return 0;
}

}  // namespace

extern "C" int wmain(int /*argc*/, wchar_t** argv) {
  MeasureSplitting(Repeated(L"brindle;", 100'000));
  MeasureComparison("compare 700,000 ASCII letters that differ in case (goal: _wcsicmp at least 1)",
                    Repeated(L"BRINDLE", 100'000), Repeated(L"brindle", 100'000), true);
  MeasureComparison(
      "compare 300,000 Cyrillic letters that differ in case (goal: lstrcmpiW above 1)",
      Repeated(L"\u0416\u0418\u042F", 100'000), Repeated(L"\u0436\u0438\u044F", 100'000), false);
  MeasureComparison(
      "compare 300,000 equal Cyrillic letters (goal: CompareStringOrdinal at least 1)",
      Repeated(L"\u0416\u0418\u042F", 100'000), Repeated(L"\u0416\u0418\u042F", 100'000), false);
  MeasureShortNames();
  MeasureReplacing(Repeated(L"brindle kite;", 50'000));
  MeasureGrowth();

  const std::filesystem::path folder = std::filesystem::absolute(argv[0]).parent_path();
  Measure("start a program",
          {{"an empty program", [&] { return Start(folder / "empty_program.exe"); }},
           {"sorrel.exe", [&] { return Start(folder / "sorrel.exe"); }}});
  std::printf("\nThe size of sorrel.exe is %.1f KiB\n",
              static_cast<double>(std::filesystem::file_size(folder / "sorrel.exe")) / 1024);
  return 0;
}
