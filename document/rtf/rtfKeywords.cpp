#include "document/rtf/rtfKeywords.h"

#include <algorithm>
#include <iterator>

namespace lexiform::document {

namespace {

using enum RtfAction;

// In alphabetical order. Destinations that every writer marks as ones to be ignored need no entry.
constexpr RtfKeyword keywords[] = {
    {"aftncn", skipped},
    {"aftnsep", skipped},
    {"aftnsepc", skipped},
    {"annotation", skipped},
    {"ansi", codePageIs, 1252},
    {"ansicpg", codePage},
    {"author", skipped},
    {"bin", binary},
    {"blue", blue},
    {"bullet", character, 0x2022},
    {"buptim", skipped},
    {"cell", cellEnd},
    {"cf", colour},
    {"cocoartf", writtenOnMac},
    {"colortbl", colourTable},
    {"column", paragraphEnd},
    {"comment", skipped},
    {"company", skipped},
    {"cpg", fontCodePage},
    {"creatim", skipped},
    {"deff", defaultFont},
    {"deleted", deleted},
    {"do", choice},
    {"doccomm", skipped},
    {"dptxbxtext", chosen},
    {"emdash", character, 0x2014},
    {"emspace", character, 0x2003},
    {"endash", character, 0x2013},
    {"enspace", character, 0x2002},
    {"f", font},
    {"falt", skipped},
    {"fcharset", fontCharset},
    {"filetbl", skipped},
    {"fldinst", skipped},
    {"fldrslt", transparent},
    {"fname", skipped},
    {"fontemb", skipped},
    {"fontfile", skipped},
    {"fonttbl", fontTable},
    {"footer", skipped},
    {"footerf", skipped},
    {"footerl", skipped},
    {"footerr", skipped},
    {"footnote", note},
    {"formfield", skipped},
    {"ftncn", skipped},
    {"ftnsep", skipped},
    {"ftnsepc", skipped},
    {"generator", skipped},
    {"green", green},
    {"header", skipped},
    {"headerf", skipped},
    {"headerl", skipped},
    {"headerr", skipped},
    {"hlinkbase", skipped},
    {"info", skipped},
    {"keywords", skipped},
    {"ldblquote", character, 0x201C},
    {"line", lineEnd},
    {"listtext", skipped},
    {"lquote", character, 0x2018},
    {"ltrmark", character, 0x200E},
    {"lxeol", ownLineEnd},
    {"mac", codePageIs, 10000},
    {"manager", skipped},
    {"nestcell", cellEnd},
    {"nestrow", rowEnd},
    {"nesttableprops", transparent},
    {"nonesttables", skipped},
    {"nonshppict", skipped},
    {"objdata", skipped},
    {"object", choice},
    {"operator", skipped},
    {"page", character, 0x000C},
    {"panose", skipped},
    {"par", paragraphEnd},
    {"pc", codePageIs, 437},
    {"pca", codePageIs, 850},
    {"pict", skipped},
    {"plain", plain},
    {"pntext", skipped},
    {"printim", skipped},
    {"private", skipped},
    {"qmspace", character, 0x2005},
    {"rdblquote", character, 0x201D},
    {"red", red},
    {"result", chosen},
    {"revtim", skipped},
    {"row", rowEnd},
    {"rquote", character, 0x2019},
    {"rtlmark", character, 0x200F},
    {"rxe", skipped},
    {"sect", paragraphEnd},
    {"shp", choice},
    {"shpinst", transparent},
    {"shprslt", skipped},
    {"shptxt", chosen},
    {"sn", skipped},
    {"sp", skipped},
    {"stylesheet", skipped},
    {"subject", skipped},
    {"sv", skipped},
    {"tab", character, 0x0009},
    {"tc", skipped},
    {"template", skipped},
    {"title", skipped},
    {"u", unicode},
    {"uc", fallbackLength},
    {"ud", chosen},
    {"upr", choice},
    {"v", hidden},
    {"xe", skipped},
    {"zwbo", character, 0x200B},
    {"zwj", character, 0x200D},
    {"zwnbo", character, 0x2060},
    {"zwnj", character, 0x200C},
};

constexpr bool before(const RtfKeyword& a, const RtfKeyword& b) {
    return a.word < b.word;
}
static_assert(std::is_sorted(std::begin(keywords), std::end(keywords), before));

} // namespace

RtfKeyword rtfKeyword(std::string_view word) {
    const auto* const known =
        std::lower_bound(std::begin(keywords), std::end(keywords), RtfKeyword{word, none, 0}, before);
    if (known == std::end(keywords) || known->word != word) return {word, none, 0};
    return *known;
}

} // namespace lexiform::document
