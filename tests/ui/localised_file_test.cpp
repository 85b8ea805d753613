#include "lib/ui/localised_file.h"

#include "lib/ui/locale_table.h"
#include "tests/support/testing.h"

TEST_CASE("FindLocaleName, FindLocaleId: return the same names and LCIDs as Windows") {
  int count = 0;
  for (LCID id = 0; id < 0x10000; ++id) {
    const wchar_t* const name = FindLocaleName(id);
    if (name == nullptr) {
      continue;
    }
    ++count;
    CHECK(FindLocaleId(name) == id);
    // Skips Konkani, because its locale name in Wine 10 contains a script subtag.
    if (id != 0x0457) {
      wchar_t known[LOCALE_NAME_MAX_LENGTH] = L"";
      LCIDToLocaleName(id, known, LOCALE_NAME_MAX_LENGTH, 0);
      CHECK_BOTH(known == std::wstring(name), LocaleNameToLCID(name, 0) == id);
    }
  }
  CHECK_BOTH(count == 158, FindLocaleName(0x000F0407) == std::wstring(L"de-DE"));
  CHECK_BOTH(FindLocaleName(0x01000407) == nullptr, FindLocaleId(L"AF-za") == 0x0436);
  CHECK_BOTH(FindLocaleId(L"de-C") == 0, FindLocaleId(nullptr) == 0);
}

TEST_CASE("FindLocalisedFile: finds the file for the language, or for the nearest language") {
  const ScratchFolder scratch;
  const std::wstring folder = scratch / L"";
  const auto find = [&](LANGID language, LocalisedFileForm form) {
    const WString path = FindLocalisedFile(folder.c_str(), L"\u00E9.x", language, form);
    return path.empty() ? WString() : path.substr(folder.length());
  };
  constexpr auto kFolder = LocalisedFileForm::kFolder, kSuffix = LocalisedFileForm::kSuffix;
  CHECK(GetLocalisedFilePath(L"C:\\x", L"a.b.dll", 0x0407, kFolder) ==
        L"C:\\x\\resources\\de-DE\\a.b.dll");
  CHECK(GetLocalisedFilePath(L"C:\\x\\", L"a.b.dll", 0x0407, kSuffix) == L"C:\\x\\a.b_de-DE.dll");
  CHECK(GetLocalisedFilePath(nullptr, L"a", 0x0407, kSuffix) == L"a_de-DE");
  CHECK(GetLocalisedFilePath(L"C:\\x", L"a", 0xFFFF, kSuffix) == L"");
  CHECK(GetLocalisedFilePath(L"C:\\x", nullptr, 0x0407, kSuffix) == L"");
  // Each step creates a file, or only a folder if its path ends in a backslash. The second column
  // is the file that is then found for German (Germany), in the form of the step's path.
  const wchar_t* const steps[][2] = {
      {L"\u00E9_old.x", L""},
      {L"\u00E9_de-DE.x\\", L""},
      {L"\u00E9_ja-JP.xy", L""},
      {L"\u00C9_ja-JP.X", L"\u00E9_ja-JP.x"},
      {L"\u00E9_da-DK.x", L"\u00E9_da-DK.x"},
      {L"\u00E9_en-DE.x", L"\u00E9_en-DE.x"},
      {L"\u00E9_en-US.x", L"\u00E9_en-US.x"},
      {L"\u00E9_de-CH.x", L"\u00E9_de-CH.x"},
      {L"\u00E9_de-AT.x", L"\u00E9_de-AT.x"},
      {L"resources\\de-CH\\", L""},
      {L"resources\\en-US\\\u00E9.x", L"resources\\en-US\\\u00E9.x"},
      {L"resources\\de-CH\\\u00E9.x", L"resources\\de-CH\\\u00E9.x"},
      {L"resources\\de-DE\\\u00E9.x", L"resources\\de-DE\\\u00E9.x"}};
  // As on Windows 10, "en-DE" and "old" have no LCID. The user's language (0x0400) is German.
  const auto getNumber = +[](LPCWSTR name, LCTYPE type, LPWSTR number, int size) {
    const bool hasNone = name == std::wstring(L"en-DE") || name == std::wstring(L"old");
    *reinterpret_cast<DWORD*>(number) = LOCALE_CUSTOM_UNSPECIFIED;
    return hasNone ? 2 : GetLocaleInfoEx(name, type, number, size);
  };
  const ReplacedExport numbers("GetLocaleInfoEx", getNumber);
  REPLACE(GetLocaleInfoW, [](auto original, LCID id, auto... to) {
    return original(id == LOCALE_USER_DEFAULT ? 0x0407 : id, to...);
  });
  for (const auto& [path, found] : steps) {
    CAPTURE(path);
    std::filesystem::create_directories((scratch / path).parent_path());
    scratch.Write(path, "x");
    const bool isInFolder = std::wstring_view(path).starts_with(L"resources");
    for (const int german : {0x0407, 0x0400}) {
      CHECK(find(static_cast<LANGID>(german), isInFolder ? kFolder : kSuffix) == found);
    }
  }
  const ReplacedExport missing("GetLocaleInfoEx", nullptr);
  CHECK(find(0x0407, kFolder) == L"resources\\de-DE\\\u00E9.x");
  CHECK_BOTH(find(0x0807, kSuffix) == L"\u00E9_de-CH.x", find(0x0411, kFolder) == L"");
}
