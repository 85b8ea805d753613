#include "lib/ui/locale_table.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "lib/string/internal/ascii_case.h"

namespace kelvo {

namespace {

struct Locale {
  LCID id;
  const wchar_t* name;
};

constexpr Locale kLocales[] = {
    {0x0401, L"ar-SA"},        {0x0402, L"bg-BG"},      {0x0403, L"ca-ES"},
    {0x0404, L"zh-TW"},        {0x0405, L"cs-CZ"},      {0x0406, L"da-DK"},
    {0x0407, L"de-DE"},        {0x0408, L"el-GR"},      {0x0409, L"en-US"},
    {0x040A, L"es-ES_tradnl"}, {0x040B, L"fi-FI"},      {0x040C, L"fr-FR"},
    {0x040D, L"he-IL"},        {0x040E, L"hu-HU"},      {0x040F, L"is-IS"},
    {0x0410, L"it-IT"},        {0x0411, L"ja-JP"},      {0x0412, L"ko-KR"},
    {0x0413, L"nl-NL"},        {0x0414, L"nb-NO"},      {0x0415, L"pl-PL"},
    {0x0416, L"pt-BR"},        {0x0418, L"ro-RO"},      {0x0419, L"ru-RU"},
    {0x041A, L"hr-HR"},        {0x041B, L"sk-SK"},      {0x041C, L"sq-AL"},
    {0x041D, L"sv-SE"},        {0x041E, L"th-TH"},      {0x041F, L"tr-TR"},
    {0x0420, L"ur-PK"},        {0x0421, L"id-ID"},      {0x0422, L"uk-UA"},
    {0x0423, L"be-BY"},        {0x0424, L"sl-SI"},      {0x0425, L"et-EE"},
    {0x0426, L"lv-LV"},        {0x0427, L"lt-LT"},      {0x0429, L"fa-IR"},
    {0x042A, L"vi-VN"},        {0x042B, L"hy-AM"},      {0x042C, L"az-Latn-AZ"},
    {0x042D, L"eu-ES"},        {0x042F, L"mk-MK"},      {0x0432, L"tn-ZA"},
    {0x0434, L"xh-ZA"},        {0x0435, L"zu-ZA"},      {0x0436, L"af-ZA"},
    {0x0437, L"ka-GE"},        {0x0438, L"fo-FO"},      {0x0439, L"hi-IN"},
    {0x043A, L"mt-MT"},        {0x043B, L"se-NO"},      {0x043E, L"ms-MY"},
    {0x043F, L"kk-KZ"},        {0x0440, L"ky-KG"},      {0x0441, L"sw-KE"},
    {0x0443, L"uz-Latn-UZ"},   {0x0444, L"tt-RU"},      {0x0445, L"bn-IN"},
    {0x0446, L"pa-IN"},        {0x0447, L"gu-IN"},      {0x0449, L"ta-IN"},
    {0x044A, L"te-IN"},        {0x044B, L"kn-IN"},      {0x044C, L"ml-IN"},
    {0x044E, L"mr-IN"},        {0x044F, L"sa-IN"},      {0x0450, L"mn-MN"},
    {0x0452, L"cy-GB"},        {0x0456, L"gl-ES"},      {0x0457, L"kok-IN"},
    {0x045A, L"syr-SY"},       {0x0465, L"dv-MV"},      {0x046B, L"quz-BO"},
    {0x046C, L"nso-ZA"},       {0x0481, L"mi-NZ"},      {0x0801, L"ar-IQ"},
    {0x0804, L"zh-CN"},        {0x0807, L"de-CH"},      {0x0809, L"en-GB"},
    {0x080A, L"es-MX"},        {0x080C, L"fr-BE"},      {0x0810, L"it-CH"},
    {0x0813, L"nl-BE"},        {0x0814, L"nn-NO"},      {0x0816, L"pt-PT"},
    {0x081D, L"sv-FI"},        {0x082C, L"az-Cyrl-AZ"}, {0x083B, L"se-SE"},
    {0x083E, L"ms-BN"},        {0x0843, L"uz-Cyrl-UZ"}, {0x086B, L"quz-EC"},
    {0x0C01, L"ar-EG"},        {0x0C04, L"zh-HK"},      {0x0C07, L"de-AT"},
    {0x0C09, L"en-AU"},        {0x0C0A, L"es-ES"},      {0x0C0C, L"fr-CA"},
    {0x0C3B, L"se-FI"},        {0x0C6B, L"quz-PE"},     {0x1001, L"ar-LY"},
    {0x1004, L"zh-SG"},        {0x1007, L"de-LU"},      {0x1009, L"en-CA"},
    {0x100A, L"es-GT"},        {0x100C, L"fr-CH"},      {0x101A, L"hr-BA"},
    {0x103B, L"smj-NO"},       {0x1401, L"ar-DZ"},      {0x1404, L"zh-MO"},
    {0x1407, L"de-LI"},        {0x1409, L"en-NZ"},      {0x140A, L"es-CR"},
    {0x140C, L"fr-LU"},        {0x141A, L"bs-Latn-BA"}, {0x143B, L"smj-SE"},
    {0x1801, L"ar-MA"},        {0x1809, L"en-IE"},      {0x180A, L"es-PA"},
    {0x180C, L"fr-MC"},        {0x181A, L"sr-Latn-BA"}, {0x183B, L"sma-NO"},
    {0x1C01, L"ar-TN"},        {0x1C09, L"en-ZA"},      {0x1C0A, L"es-DO"},
    {0x1C1A, L"sr-Cyrl-BA"},   {0x1C3B, L"sma-SE"},     {0x2001, L"ar-OM"},
    {0x2009, L"en-JM"},        {0x200A, L"es-VE"},      {0x203B, L"sms-FI"},
    {0x2401, L"ar-YE"},        {0x2409, L"en-029"},     {0x240A, L"es-CO"},
    {0x243B, L"smn-FI"},       {0x2801, L"ar-SY"},      {0x2809, L"en-BZ"},
    {0x280A, L"es-PE"},        {0x2C01, L"ar-JO"},      {0x2C09, L"en-TT"},
    {0x2C0A, L"es-AR"},        {0x3001, L"ar-LB"},      {0x3009, L"en-ZW"},
    {0x300A, L"es-EC"},        {0x3401, L"ar-KW"},      {0x3409, L"en-PH"},
    {0x340A, L"es-CL"},        {0x3801, L"ar-AE"},      {0x380A, L"es-UY"},
    {0x3C01, L"ar-BH"},        {0x3C0A, L"es-PY"},      {0x4001, L"ar-QA"},
    {0x400A, L"es-BO"},        {0x440A, L"es-SV"},      {0x480A, L"es-HN"},
    {0x4C0A, L"es-NI"},        {0x500A, L"es-PR"},
};
static_assert(std::ranges::is_sorted(kLocales, {}, &Locale::id));

}  // namespace

const wchar_t* FindLocaleName(LCID locale) {
  constexpr LCID kSortBits = 0x000F0000;
  const LCID id = locale & ~kSortBits;
  const auto* const found = std::ranges::lower_bound(kLocales, id, {}, &Locale::id);
  return found != std::end(kLocales) && found->id == id ? found->name : nullptr;
}

LCID FindLocaleId(const wchar_t* name) {
  const std::wstring_view sought = name != nullptr ? name : L"";
  const auto* const found = std::ranges::find_if(kLocales, [sought](const Locale& locale) {
    return internal::EqualsIgnoringAsciiCase(locale.name, sought);
  });
  return found != std::end(kLocales) ? found->id : 0;
}

}  // namespace kelvo
