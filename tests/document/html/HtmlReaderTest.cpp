#include "document/html/HtmlReader.h"

#include "tests/document/support/Read.h"

#include <string>

namespace lexiform::document {
namespace {

using namespace std::string_literals;

std::string read(const std::string& body) {
    return charactersOf("<!DOCTYPE html><html><head><title>Not shown</title></head><body>" + body +
                        "</body></html>");
}

TEST(HtmlReader, putsBlocksOnLinesOfTheirOwn) {
    EXPECT_EQ(read("<h1>The tide</h1><p>Comes <b>in</b>.</p><p>Goes out.</p>"),
              "The tide\nComes in.\nGoes out.\n");
    EXPECT_EQ(read("<div>a<div>b</div>c</div>"), "a\nb\nc\n");
    EXPECT_EQ(read("<ul><li>one<li>two</ul>after"), "one\ntwo\nafter\n");
    EXPECT_EQ(read("<p></p><div><div></div></div>x"), "x\n");
}

TEST(HtmlReader, collapsesSpaces) {
    EXPECT_EQ(read("<p>  a \n\t b  </p>  <p> <i> c </i> d</p>"), "a b\nc d\n");
    EXPECT_EQ(read("a<b> b</b> c"), "a b c\n");
    EXPECT_EQ(read("a&nbsp; b"), "a\u00A0 b\n");
}

TEST(HtmlReader, endsLinesAtBreaks) {
    EXPECT_EQ(read("a<br>b<br/><br>c"), "a\nb\n\nc\n");
    EXPECT_EQ(read("<p>a<br></p><p>b<br><br></p>c<br>"), "a\nb\n\nc\n");
    EXPECT_EQ(read("<p>a</p><br><p>b</p>"), "a\n\nb\n");
}

TEST(HtmlReader, keepsWhatIsPreformatted) {
    EXPECT_EQ(read("x<pre>\n  a\n\n    b\t c</pre>y  z"), "x\n  a\n\n    b\t c\ny z\n");
    EXPECT_EQ(read("<pre>a\r\nb\rc</pre>"), "a\nb\nc\n");
}

TEST(HtmlReader, separatesTheCellsOfARowByTabs) {
    EXPECT_EQ(read("<table><tr><th>a<th>b</tr>\n<tr>\n <td> <p>c</p> </td>\n <td>d</td></tr></table>e"),
              "a\tb\nc\td\ne\n");
    EXPECT_EQ(read("<table><tr><td></td><td>b</td></tr></table>"), "\tb\n");
    EXPECT_EQ(read("<table><tr><td>a</td></tr><tr><td></td><td>b<br></td><td>c</td></tr></table>"),
              "a\n\tb\tc\n");
    EXPECT_EQ(read("<table><tr><td>a</td><td></td><td>c</td></tr></table>"), "a\t\tc\n");
    EXPECT_EQ(read("<table><tr><td><p>a</p><p>b</p></td><td>c</td></tr></table>"), "a\nb\tc\n");
}

TEST(HtmlReader, leavesOutWhatIsNotSeen) {
    EXPECT_EQ(read("a<script>if (x < y) write('<p>no</p>')</script><style>p > b { }</style>b"), "ab\n");
    EXPECT_EQ(read("a<template><p>no</p></template><noscript>no</noscript>b<!-- no -->c"), "abc\n");
    EXPECT_EQ(read("<p hidden>no<b>no</b></p><p style='color: red; DISPLAY : none'>no</p>yes"), "yes\n");
    EXPECT_EQ(read("<svg><text>no</text></svg><video>no</video><dialog>no</dialog>yes<img alt=no>"), "yes\n");
    EXPECT_EQ(read("<ruby>漢<rp>(</rp><rt>かん</rt><rp>)</rp>字</ruby>"), "漢字\n");
}

TEST(HtmlReader, decodesEntities) {
    EXPECT_EQ(read("&lt;p&gt; &amp; &eacute;&#233;&#xE9; &hellip;&mdash;&euro; &#128512;"),
              "<p> & ééé …—€ 😀\n");
    EXPECT_EQ(read("a &unknown; c & d"), "a &unknown; c & d\n");
}

TEST(HtmlReader, takesControlCharactersForWindowsOnesAsBrowsersDo) {
    EXPECT_EQ(read("it&#146;s &#150; &#128;"), "it’s – €\n");
}

TEST(HtmlReader, readsTheEncodingThatThePageDeclares) {
    EXPECT_EQ(charactersOf("<html><head><meta charset=\"windows-1251\"></head><body>\xCF\xF0</body>"),
              "Пр\n");
    EXPECT_EQ(
        charactersOf("<html><head><META HTTP-EQUIV=\"Content-Type\" content=\"text/html; charset=Shift_JIS\">"
                     "</head><body>\x82\xA0</body>"),
        "あ\n");
    EXPECT_EQ(charactersOf("<?xml version=\"1.0\" encoding='iso-8859-2'?><html><body>\xE8</body></html>"),
              "č\n");
    EXPECT_EQ(charactersOf("<html><head><meta charset=utf-16></head><body>\xC3\xA9</body></html>"), "é\n");
    EXPECT_EQ(charactersOf("<html><head><meta charset=nonsense></head><body>\xC3\xA9</body></html>"), "é\n");
    EXPECT_EQ(charactersOf("<html><head><meta charset=utf-8></head><body>caf\xE9!</body></html>"),
              "caf\uFFFD!\n");
    EXPECT_EQ(charactersOf("<html><body>caf\xE9</body></html>"), "café\n");
}

TEST(HtmlReader, readsPagesInUtf16) {
    std::string page;
    for (const char c : "<html><meta charset=utf-8><body>\xE9</body></html>"s)
        page += {c, '\0'};
    EXPECT_EQ(charactersOf("\xFF\xFE" + page), "é\n");
    EXPECT_EQ(charactersOf(page), "é\n");
}

TEST(HtmlReader, readsXhtml) {
    EXPECT_EQ(
        charactersOf(
            "<?xml version=\"1.0\"?>\n<!-- a page -->\n<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.1//EN\" "
            "\"http://www.w3.org/TR/xhtml11/DTD/xhtml11.dtd\">\n<html "
            "xmlns=\"http://www.w3.org/1999/xhtml\"><head><title/><script src=\"a.js\"/></head>"
            "<body><p>One<br/>two<a id=\"x\"/></p></body></html>"),
        "One\ntwo\n");
}

TEST(HtmlReader, bearsBadlyNestedAndUnendedTags) {
    EXPECT_EQ(read("<b><i>a</b></i> b</p></div></td><p>c <p>d<p>e"), "a b\nc\nd\ne\n");
    EXPECT_EQ(read("a < b and c <3 d"), "a < b and c <3 d\n");
    EXPECT_EQ(charactersOf("<p>one <b>two"), "one two\n");
    EXPECT_EQ(charactersOf("<html><body>one<scr"), "one\n");
    EXPECT_EQ(charactersOf("<html><body>one<!-- two"), "one\n");
}

TEST(HtmlReader, dropsControlCharacters) {
    EXPECT_EQ(charactersOf("<html><body>a\x01"
                           "b\x0B"
                           "c</body></html>"),
              "abc\n");
}

TEST(HtmlReader, refusesElementsNestedAHundredThousandDeep) {
    for (const std::string tag : {"<div>", "<b>", "<table><tr><td>", "<ul><li>"}) {
        std::string page = "<html>";
        for (int i = 0; i < 100000; ++i)
            page += tag;
        EXPECT_EQ(faultOf(page), ReadFault::tooComplex) << tag;
    }
}

TEST(HtmlReader, refusesATagWithAHundredThousandAttributes) {
    std::string tag = "<html><p";
    for (int i = 0; i < 100000; ++i)
        tag += " a" + std::to_string(i);
    EXPECT_EQ(faultOf(tag + ">"), ReadFault::tooComplex);
    EXPECT_EQ(faultOf("<html><script>x<b=\"</script>" + tag.substr(6) + ">"), ReadFault::tooComplex);
    EXPECT_EQ(faultOf("<html><!-- <b=\" -->" + tag.substr(6) + ">"), ReadFault::tooComplex);
}

TEST(HtmlReader, bearsLongAttributes) {
    std::string words;
    for (int i = 0; i < 100000; ++i)
        words += "word ";
    EXPECT_EQ(read("<p title=\"" + words + "\" data-x='" + words + "'>text</p>"), "text\n");
}

TEST(HtmlReader, survivesEveryBeginningOfAPage) {
    readEveryBeginning(
        "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>x</title><script>a<b</script></head>"
        "<body class='a'><p hidden>b&eacute;&#1234;</p><table><tr><td>c</table><pre>d\n</pre></body>");
}

} // namespace
} // namespace lexiform::document
