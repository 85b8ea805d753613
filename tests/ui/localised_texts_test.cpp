#include "lib/ui/locale_names.h"
#include "lib/ui/resource_languages.h"
#include "lib/ui/text_substitution.h"
#include "lib/ui/utf8_output.h"
#include "lib/ui/window_texts.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/testing.h"

TEST_CASE("ChooseResourceLanguage: falls back on primary language, then English, then the first") {
  using Languages = std::vector<LANGID>;
  const auto languagesOf = [](const wchar_t* library) {
    return GetStringResourceLanguages(LoadLibraryW(ProgramPath(library).c_str()));
  };
  CHECK(languagesOf(L"string_languages.dll") == Languages{0x0407, 0x0411, 0x0809});
  CHECK(languagesOf(L"named_strings.dll") == Languages{0x0C0C});
  CHECK_BOTH(GetStringResourceLanguages(nullptr).empty(), ChooseResourceLanguage({}, 0x0409) == 0);
  CHECK(ChooseResourceLanguage({0x0407, 0x0807}, 0x0807) == 0x0807);
  CHECK(ChooseResourceLanguage({0x0409, 0x0C07, 0x0407}, 0x0807) == 0x0C07);
  CHECK(ChooseResourceLanguage({0x040C, 0x0809, 0x0409}, 0x0411) == 0x0809);
  CHECK(ChooseResourceLanguage({0x040C, 0x0410}, 0x0411) == 0x040C);
}

TEST_CASE("LocaleNameFromLcid: returns an empty string if LCIDToLocaleName is missing") {
  CHECK_BOTH(LocaleNameFromLcid(0x0007) == L"de", LocaleNameFromLcid(0x12345) == L"");
  const ReplacedExport missing("LCIDToLocaleName", nullptr);
  CHECK(LocaleNameFromLcid(0x0007) == L"");
}

TEST_CASE("ReplaceAllInBuffer: replaces all occurrences in a buffer of eight characters") {
  // If the result is null, the text must stay the same.
  const std::array<const wchar_t*, 4> rows[] = {
      {L"a.b.c", L".", L"--", L"a--b--c"}, {L"aaa", L"aa", L"a", L"aa"},
      {L"abab", L"ab", nullptr, L""},      {L"abc", L"x", L"y", nullptr},
      {L"abc", L"", L"y", nullptr},        {L"1234567", L"7", L"x", L"123456x"},
      {L"12345678", L"1", L"x", nullptr},  {L"123a", L"a", L"4567", L"1234567"},
      {L"aa45", L"a", L"012", L"0120124"}, {L"aa", L"a", L"01234567", L"0123456"}};
  for (const auto& [text, search, replacement, result] : rows) {
    CAPTURE(text);
    wchar_t buffer[] = L"........####";
    std::copy_n(text, std::min(std::wcslen(text) + 1, std::size_t{8}), buffer);
    CHECK(ReplaceAllInBuffer(buffer, 8, search, replacement) == (result != nullptr));
    CHECK(std::wstring(buffer, 8).c_str() == std::wstring(result != nullptr ? result : text));
    CHECK(buffer + 8 == std::wstring(L"####"));
  }
}

TEST_CASE("RewriteWindowTexts: rewrites only the texts of the window, its labels and its buttons") {
  const DesktopScope scope;
  const auto make = [](const std::wstring& kind, const std::wstring& text, HWND parent) {
    return CreateWindowExW(0, kind.c_str(), text.c_str(), parent == nullptr ? 0 : WS_CHILD, 0, 0, 9,
                           9, parent, nullptr, nullptr, nullptr);
  };
  for (int tries = 0; tries < 50 && DestroyWindow(make(L"Static", L"", nullptr)) == FALSE;
       ++tries) {
    Sleep(200);
  }
  TextSubstitutions() = {{L"b", L"c"}, {L"kelvo!", L"ab"}, {L"a", L"b"}};
  const std::wstring most(1017, L'x');
  // In the order of the keys, "a kelvo! b" becomes "b kelvo! b", "c kelvo! c", "c ab c".
  const std::array<std::wstring, 3> rows[] = {
      {L"ListBox", L"KELVO window", L"kelvo window"},
      {L"Static", L"Kelvo KELVO kelvo KeLVO", L"kelvo kelvo kelvo KeLVO"},
      {L"Edit", L"Kelvo", L"Kelvo"},
      {L"Button", L"a Kelvo! b", L"c ab c"},
      {L"kelvo StaticText", L"Kelvo", L"kelvo"},
      {L"ListBox", L"Kelvo", L"Kelvo"},
      {L"STATIC", L"Kelvo" + most, L"kelvo" + most},
      {L"Static", L"Kelvo" + most + L"yz", L"Kelvo" + most + L"y"}};
  WNDCLASSW textClass{};
  textClass.lpfnWndProc = DefWindowProcW;
  textClass.lpszClassName = L"kelvo StaticText";
  RegisterClassW(&textClass);
  std::vector<HWND> windows = {nullptr};
  for (const auto& [kind, text, result] : rows) {
    windows.push_back(make(kind, text, windows.back()));
  }
  CHECK(RewriteWindowTexts(windows[1]) == TRUE);
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    std::wstring text(2048, L'\0');
    GetWindowTextW(windows[i + 1], text.data(), 2048);
    CHECK(text.c_str() == rows[i][2]);
  }
  TextSubstitutions().clear();
}

TEST_CASE("GetStringResourceLanguages, RewriteWindowTexts: throw only after the enumeration") {
  // Throws once while malloc works: the first exception makes the C++ runtime allocate memory.
  CHECK_THROWS(throw 1);
  bool hasMemory = true, isThrown = false;
  REPLACE(malloc,
          [&](auto original, std::size_t size) { return hasMemory ? original(size) : nullptr; });
  const auto call = [&](auto callback, auto... given) {
    hasMemory = false;
    try {
      callback(given...);
    } catch (...) {
      isThrown = true;
    }
    hasMemory = true;
    return FALSE;
  };
  REPLACE(EnumResourceLanguagesW, [&](auto, auto... given) {
    const auto& [module, type, name, append, context] = std::tuple(given...);
    return call(append, module, type, name, WORD{9}, context);
  });
  REPLACE(EnumChildWindows,
          [&](auto, auto, auto rewrite, auto context) { return call(rewrite, nullptr, context); });
  // Makes every window look like a label with the text "Kelvo, Kelvo".
  REPLACE(GetClassNameW,
          [](auto, auto, auto* name, auto) { return lstrlenW(lstrcpyW(name, L"static")); });
  REPLACE(GetWindowTextW,
          [](auto, auto, auto* text, auto) { return lstrlenW(lstrcpyW(text, L"Kelvo, Kelvo")); });
  HMODULE const library = LoadLibraryW(ProgramPath(L"named_strings.dll").c_str());
  CHECK_THROWS_AS(GetStringResourceLanguages(library), std::bad_alloc);
  CHECK_THROWS_AS(RewriteWindowTexts(nullptr), std::bad_alloc);
  CHECK_FALSE(isThrown);
}

TEST_CASE("WriteUtf8: writes UTF-16 to a console, UTF-8 to a file; fails if not all is written") {
  std::wstring seen;
  DWORD lost = 0;
  BOOL answer = TRUE;
  const auto write = [&](const auto* text, DWORD length, DWORD* written) {
    seen.assign(text, text + length);
    *written = length - lost;
    return answer;
  };
  REPLACE(WriteConsoleW, [&](auto, auto, auto text, DWORD length, DWORD* written, auto) {
    return write(static_cast<const wchar_t*>(text), length, written);
  });
  REPLACE(WriteFile, [&](auto, auto, auto text, DWORD size, DWORD* written, auto) {
    return write(static_cast<const BYTE*>(text), size, written);
  });
  const auto errors = reinterpret_cast<HANDLE>(std::uintptr_t{STD_ERROR_HANDLE});
  REPLACE(GetStdHandle,
          [](auto, DWORD device) { return reinterpret_cast<HANDLE>(std::uintptr_t{device}); });
  for (const bool isConsole : {true, false}) {
    REPLACE(GetConsoleMode,
            [=](auto, HANDLE asked, auto) -> BOOL { return asked == errors && isConsole; });
    // Writes characters of two, three and four UTF-8 bytes; the last is a surrogate pair in UTF-16.
    CHECK(WriteUtf8(STD_ERROR_HANDLE, "\xC3\xA9\n\xE2\x82\xAC\xF0\x9F\x98\x80\n"));
    CHECK(seen == (isConsole ? L"\u00E9\r\n\u20AC\U0001F600\r\n"
                             : L"\xC3\xA9\r\n\xE2\x82\xAC\xF0\x9F\x98\x80\r\n"));
    lost = 1;
    CHECK_FALSE(WriteUtf8(STD_ERROR_HANDLE, "a"));
    CHECK(WriteUtf8(STD_ERROR_HANDLE, ""));
    lost = 0;
    answer = FALSE;
    CHECK_FALSE(WriteUtf8(STD_ERROR_HANDLE, "a"));
    answer = TRUE;
  }
}

TEST_CASE("WriteUtf8: writes a long text to a console in pieces, and splits no surrogate pair") {
  std::wstring seen;
  REPLACE(GetConsoleMode, [](auto...) -> BOOL { return TRUE; });
  REPLACE(WriteConsoleW,
          [&](auto, auto, const void* text, DWORD length, DWORD* done, auto) -> BOOL {
            seen.append(static_cast<const wchar_t*>(text), length);
            CHECK_FALSE(IS_HIGH_SURROGATE(seen.back()));
            *done = length;
            // Before Windows 8, WriteConsoleW fails for 64 KiB (0x8000 units) or more.
            return length < 0x8000;
          });
  std::wstring expected = L"a";
  std::string text = "a";
  for (int i = 0; i < 40000; ++i) {
    expected += L"\U0001F600";
    text += "\xF0\x9F\x98\x80";
  }
  CHECK(WriteUtf8(STD_OUTPUT_HANDLE, text));
  CHECK((seen == expected));
}
