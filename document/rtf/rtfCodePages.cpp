#include "document/rtf/rtfCodePages.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace lexiform::document {

namespace {

struct Charset {
    std::int32_t charset;
    std::int32_t codePage;
};

// Rich Text Format 1.9, "Font Table". 42 is its number for symbols.
constexpr std::array<Charset, 30> charsets = {{
    {0, westernCodePage}, {2, symbolCodePage}, {77, 10000}, {78, 10001}, {79, 10003}, {80, 10008},
    {81, 10002},          {83, 10005},         {84, 10004}, {85, 10006}, {86, 10081}, {87, 10021},
    {88, 10029},          {89, 10007},         {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},           {161, 1253},         {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
    {186, 1257},          {204, 1251},         {222, 874},  {238, 1250}, {254, 437},  {255, 850},
}};

struct Named {
    std::int32_t codePage;
    std::string_view name;
};

// Those that have another name than their number. The Asian ones of the Macintosh differ little from
// those of Windows, and Johab not in the letters of one byte.
constexpr Named names[] = {
    {708, "iso-8859-6"},      {10000, "macintosh"},   {10001, "windows-932"},
    {10002, "windows-950"},   {10003, "windows-949"}, {10004, "x-mac-arabic"},
    {10005, "x-mac-hebrew"},  {10006, "x-mac-greek"}, {10007, "x-mac-cyrillic"},
    {10008, "windows-936"},   {10021, "windows-874"}, {10029, "x-mac-centraleurroman"},
    {10081, "x-mac-turkish"}, {1361, "windows-949"},  {54936, "gb18030"},
    {65001, "UTF-8"},
};

} // namespace

std::optional<std::int32_t> codePageOfCharset(std::int32_t charset) {
    const auto* const known = std::find_if(charsets.begin(), charsets.end(),
                                           [=](const Charset& entry) { return entry.charset == charset; });
    if (known == charsets.end()) return std::nullopt;
    return known->codePage;
}

std::string charsetOfCodePage(std::int32_t codePage) {
    const auto* const named = std::find_if(std::begin(names), std::end(names),
                                           [=](const Named& entry) { return entry.codePage == codePage; });
    if (named != std::end(names)) return std::string(named->name);
    const bool isOfWindows = codePage == 874 || codePage == 932 || codePage == 936 || codePage == 949 ||
                             codePage == 950 || (codePage >= 1250 && codePage <= 1258);
    return (isOfWindows ? "windows-" : "ibm-") + std::to_string(codePage);
}

} // namespace lexiform::document
