#include "lib/ui/localised_file.h"

#include "lib/ui/locale_table.h"
#include "tests/support/testing.h"

TEST_CASE("each locale of the table is Windows' own, both ways") {
  int count = 0;
  for (LCID id = 0; id < 0x10000; ++id) {
    const wchar_t* const name = FindLocaleName(id);
    if (name == nullptr) {
      continue;
    }
    ++count;
    CHECK(FindLocaleId(name) == id);
    // In Wine 10 the name of Konkani holds its script.
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

TEST_CASE("the exact file is found, or the nearest that is there") {
  const ScratchFolder scratch;
  const std::wstring folder = scratch / L"";
  const auto find = [&](LANGID language, LocalisedFileForm form) {
    const WString path = FindLocalisedFile(folder.c_str(), L"a.b.dll", language, form);
    return path.empty() ? WString() : path.substr(folder.length());
  };
  constexpr auto kFolder = LocalisedFileForm::kFolder, kSuffix = LocalisedFileForm::kSuffix;
  CHECK(GetLocalisedFilePath(L"C:\\x", L"a.b.dll", 0x0407, kFolder) ==
        L"C:\\x\\resources\\de-DE\\a.b.dll");
  CHECK(GetLocalisedFilePath(L"C:\\x\\", L"a.b.dll", 0x0407, kSuffix) == L"C:\\x\\a.b_de-DE.dll");
  CHECK(GetLocalisedFilePath(nullptr, L"a", 0x0407, kSuffix) == L"a_de-DE");
  CHECK(GetLocalisedFilePath(L"C:\\x", L"a", 0xFFFF, kSuffix) == L"");
  CHECK(GetLocalisedFilePath(L"C:\\x", nullptr, 0x0407, kSuffix) == L"");
  // What is made one after the other, of a path that ends in a separator only the folder, and what
  // is then found for German (Germany).
  const wchar_t* const steps[][2] = {{L"a.b_nonsense name.dll", L""},
                                     {L"a.b_de-DE.dll\\", L""},
                                     {L"a.b_ja-JP.dllx", L""},
                                     {L"A.B_ja-JP.DLL", L"a.b_ja-JP.dll"},
                                     {L"a.b_da-DK.dll", L"a.b_da-DK.dll"},
                                     {L"a.b_en-GB.dll", L"a.b_en-GB.dll"},
                                     {L"a.b_en-US.dll", L"a.b_en-US.dll"},
                                     {L"a.b_de-CH.dll", L"a.b_de-CH.dll"},
                                     {L"a.b_de-AT.dll", L"a.b_de-AT.dll"},
                                     {L"resources\\de-CH\\", L""},
                                     {L"resources\\en-US\\a.b.dll", L"resources\\en-US\\a.b.dll"},
                                     {L"resources\\de-CH\\a.b.dll", L"resources\\de-CH\\a.b.dll"},
                                     {L"resources\\de-DE\\a.b.dll", L"resources\\de-DE\\a.b.dll"}};
  for (const auto& [path, found] : steps) {
    CAPTURE(path);
    std::filesystem::create_directories((scratch / path).parent_path());
    scratch.Write(path, "x");
    const bool isInFolder = std::wstring_view(path).starts_with(L"resources");
    CHECK(find(0x0407, isInFolder ? kFolder : kSuffix) == found);
  }
  const ReplacedExport missing("GetLocaleInfoEx", nullptr);
  CHECK(find(0x0407, kFolder) == L"resources\\de-DE\\a.b.dll");
  CHECK_BOTH(find(0x0807, kSuffix) == L"a.b_de-CH.dll", find(0x0411, kFolder) == L"");
}
