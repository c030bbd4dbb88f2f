#include "document/rtf/RtfReader.h"

#include "tests/document/support/Read.h"

#include <string>

namespace lexiform::document {
namespace {

std::string read(const std::string& body) {
    return charactersOf("{\\rtf1\\ansi " + body + "}");
}

TEST(RtfReader, givesTheCharactersOfTheBody) {
    EXPECT_EQ(read("The \\b tide\\b0  comes\nin.\\par And goes.\\par"), "The tide comesin.\nAnd goes.\n");
    EXPECT_EQ(read("a\\tab b\\line c\\page d"), "a\tb\nc\fd");
    EXPECT_EQ(read("\\{braces\\} and \\\\"), "{braces} and \\");
    EXPECT_EQ(read("a\\~b\\_c\\-d"), "a\u00A0b\u2011c\u00ADd");
    EXPECT_EQ(read("\\ldblquote it\\rquote s\\rdblquote\\emdash\\bullet"), "“it’s”—•");
}

TEST(RtfReader, takesABackslashBeforeALineEndForTheEndOfAParagraph) {
    EXPECT_EQ(read("one\\\ntwo\\\r\nthree"), "one\ntwo\nthree");
}

TEST(RtfReader, skipsWhatIsNoTextOfTheBody) {
    EXPECT_EQ(read("{\\fonttbl{\\f0 Some Font;}}{\\stylesheet{\\s0 Normal;}}{\\info{\\title A}{\\author B}}"
                   "{\\*\\generator Something;}{\\header head}{\\footer foot}{\\pict 0102ff}text"),
              "text");
    EXPECT_EQ(read("{\\*\\unknown {nested} gone}kept{\\unknown shown}"), "keptshown");
    EXPECT_EQ(read("a{\\v hidden}b{\\deleted gone}c\\v out\\v0 d\\v out\\plain e"), "abcde");
    EXPECT_EQ(read("{\\listtext\\bullet\\tab}one\\par{\\pntext 2.\\tab}two"), "one\ntwo");
    EXPECT_EQ(read("index{\\xe entry}ed"), "indexed");
}

TEST(RtfReader, showsTheResultOfAFieldAndNotItsInstruction) {
    EXPECT_EQ(read("see {\\field{\\*\\fldinst{HYPERLINK \"http://a.example\"}}{\\fldrslt{\\ul the page}}}."),
              "see the page.");
    EXPECT_EQ(read("{\\field{\\fldinst PAGE}{\\fldrslt 7}}"), "7");
}

TEST(RtfReader, separatesTheCellsOfATableByTabs) {
    EXPECT_EQ(read("\\trowd\\intbl a\\cell b\\cell\\row\\trowd\\intbl \\cell d\\cell\\row\\pard after"),
              "a\tb\n\td\nafter");
    EXPECT_EQ(read("\\trowd a\\cell\\cell\\cell\\row x"), "a\t\t\nx");
    EXPECT_EQ(read("{in\\nestcell ner\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}"
                   "{\\nonesttables\\par}}\\cell\\row"),
              "in\tner\n\n");
}

TEST(RtfReader, putsNotesBehindTheText) {
    EXPECT_EQ(read("One{\\super\\chftn{\\footnote\\pard {\\super\\chftn} the first}} and "
                   "two{\\footnote the second\\par}.\\par"),
              "One and two.\nthe first\nthe second\n");
}

TEST(RtfReader, prefersTheUnicodeOfTwoAlternatives) {
    EXPECT_EQ(read("{\\upr{caf?}{\\*\\ud{caf\\u233?}}}"), "café");
    EXPECT_EQ(read("{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv 1}}{\\shptxt in the box}}{\\shprslt out}}"),
              "in the box");
    EXPECT_EQ(read("{\\object\\objemb{\\*\\objdata 0102}{\\result what it shows}}"), "what it shows");
}

TEST(RtfReader, skipsTheFallbackOfUnicodeByItsLength) {
    EXPECT_EQ(read("\\u8217?s"), "’s");
    EXPECT_EQ(read("\\u8217\\'92s"), "’s");
    EXPECT_EQ(read("\\uc0\\u233 t\\u233"), "été");
    EXPECT_EQ(read("{\\uc2\\u26085\\'93\\'fa}x"), "日x");
    EXPECT_EQ(read("{\\uc3 \\u26085abc}\\u8217?x"), "日’x");
    EXPECT_EQ(read("\\u8217\\rquote s"), "’s");
    EXPECT_EQ(read("\\uc1\\u8217{s}"), "’s");
    EXPECT_EQ(read("\\u233\\par x"), "é\nx");
    EXPECT_EQ(read("\\uc2\\u233\\bin3 {}}?x"), "éx");
}

TEST(RtfReader, readsCodeUnitsAboveTheSignBit) {
    EXPECT_EQ(read("\\u-28415?"), "\u9101");
    EXPECT_EQ(read("\\u37121?"), "\u9101");
}

TEST(RtfReader, joinsSurrogates) {
    EXPECT_EQ(read("\\u-10179?\\u-8704?"), "😀");
    EXPECT_EQ(read("\\uc0\\u55357\\u56832"), "😀");
    EXPECT_EQ(read("\\u128512?"), "😀");
}

TEST(RtfReader, replacesHalfSurrogates) {
    EXPECT_EQ(read("a\\u-10179?b"), "a\uFFFDb");
    EXPECT_EQ(read("a\\u-8704?b"), "a\uFFFDb");
    EXPECT_EQ(read("a\\u-10179?\\u-10179?\\u-8704?b"), "a\uFFFD😀b");
    EXPECT_EQ(read("\\u-10179?\\par x"), "\uFFFD\nx");
    EXPECT_EQ(read("\\u2000000?"), "\uFFFD");
}

TEST(RtfReader, stepsOverBinaryData) {
    EXPECT_EQ(read("a{\\pict\\bin5 }}}{{x}b"), "ab");
    EXPECT_EQ(charactersOf("{\\rtf1 a\\bin99999999 b}"), "a");
    EXPECT_EQ(read("a\\bin-5 b"), "ab");
}

TEST(RtfReader, decodesBytesInTheCodePageOfTheFile) {
    EXPECT_EQ(read("caf\\'e9 \\'80\\'93"), "café €“");
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0\\'e8\\'e2\\'e5\\'f2}"), "Привет");
    EXPECT_EQ(charactersOf("{\\rtf1\\mac caf\\'8e}"), "café");
    EXPECT_EQ(charactersOf("{\\rtf1\\pc caf\\'82}"), "café");
    EXPECT_EQ(charactersOf("{\\rtf1\\pca \\'9d}"), "Ø");
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg65001 caf\xC3\xA9}"), "café");
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg1252 caf\xE9}"), "café");
}

TEST(RtfReader, decodesBytesInTheCharsetOfTheirFont) {
    const std::string fonts =
        "{\\fonttbl{\\f0\\fnil\\fcharset0 A;}{\\f1\\fcharset204 B;}{\\f2\\fcharset128 C;}"
        "{\\f3\\fcharset161 D;}{\\f4\\cpg1250 E;}{\\f5\\fcharset1 F;}}";
    EXPECT_EQ(read(fonts + "\\'e9{\\f1 \\'e9}\\'e9"), "éйé");
    EXPECT_EQ(read(fonts + "\\f2 \\'93\\'fa\\'96\\'7b"), "日本");
    EXPECT_EQ(read(fonts + "\\f3 \\'e1\\plain\\'e1"), "αá");
    EXPECT_EQ(read(fonts + "\\f4 \\'e8\\f5 \\'e8\\f99 \\'e8"), "čèè");
    EXPECT_EQ(charactersOf("{\\rtf1\\deff1" + fonts + "\\'e9}"), "й");
}

TEST(RtfReader, takesTheCodePageOfAMacFileBeforeItsWesternFonts) {
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg1251\\cocoartf2639{\\fonttbl\\f0\\fswiss\\fcharset0 "
                           "Helvetica;}\\f0\\fs24 \\'cf\\'f0}"),
              "Пр");
}

TEST(RtfReader, decodesTheAsianCodePages) {
    const auto inCharset = [](const std::string& number, const std::string& bytes) {
        return read("{\\fonttbl{\\f1\\fcharset" + number + " A;}}\\f1 " + bytes);
    };
    EXPECT_EQ(inCharset("128", "\\'82\\'a0 \\'83\\'5c\\'83\\\\"), "あ ソソ");
    EXPECT_EQ(inCharset("134", "\\'d6\\'d0\\'ce\\'c4"), "中文");
    EXPECT_EQ(inCharset("136", "\\'a4\\'a4\\'a4\\'e5"), "中文");
    EXPECT_EQ(inCharset("129", "\\'c7\\'d1\\'b1\\'db"), "한글");
    EXPECT_EQ(inCharset("222", "\\'e4\\'b7\\'c2"), "ไทย");
    EXPECT_EQ(inCharset("177", "\\'f9\\'ec"), "של");
    EXPECT_EQ(inCharset("178", "\\'d3\\'e1"), "سل");
}

TEST(RtfReader, readsTheTrailByteOfACharacterAsAPlainByte) {
    EXPECT_EQ(read("{\\fonttbl{\\f1\\fcharset128 A;}}\\f1 \\'83A\\'83\\{"), "ア\u30DC");
}

TEST(RtfReader, showsTheBulletsOfSymbolFonts) {
    EXPECT_EQ(read("{\\fonttbl{\\f1\\fcharset2 Symbol;}}{\\f1\\'b7}\\tab one"), "•\tone");
    EXPECT_EQ(read("{\\fonttbl{\\f1\\fcharset2 Symbol;}}{\\f1\\u-3913 ?} two"), "• two");
}

TEST(RtfReader, takesAWrongCodePageForTheWesternOne) {
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg99999 caf\\'e9}"), "café");
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg-5 caf\\'e9}"), "café");
    EXPECT_EQ(charactersOf("{\\rtf1\\ansi\\ansicpg4711 caf\\'e9}"), "café");
}

TEST(RtfReader, replacesBytesThatMeanNothing) {
    EXPECT_EQ(read("{\\fonttbl{\\f1\\fcharset128 A;}}\\f1 a\\'83\\par b"), "a\uFFFD\nb");
}

TEST(RtfReader, knowsOurColoursByTheirValues) {
    const auto text =
        readRtf("{\\rtf1{\\colortbl;\\red215\\green0\\blue21;\\red1\\green2\\blue3;\\red0\\green85"
                "\\blue212;}a\\cf1 b{\\cf3 c}d\\cf2 e\\cf9 f\\cf-1 g\\cf1 h\\plain i}");
    ASSERT_TRUE(text.succeeded());
    AttributedText expected;
    expected.append("a", Colour::text);
    expected.append("b", Colour::red);
    expected.append("c", Colour::blue);
    expected.append("d", Colour::red);
    expected.append("efg", Colour::text);
    expected.append("h", Colour::red);
    expected.append("i", Colour::text);
    EXPECT_EQ(text.value(), expected);
}

TEST(RtfReader, bearsAMarkAndSpacesBeforeTheFile) {
    EXPECT_EQ(charactersOf("\xEF\xBB\xBF \r\n{\\rtf1 a}"), "a");
}

TEST(RtfReader, stopsAtTheEndOfTheFile) {
    EXPECT_EQ(charactersOf("{\\rtf1 a}trailing{\\par}"), "a");
    EXPECT_EQ(charactersOf("{\\rtf1 a}}}}"), "a");
}

TEST(RtfReader, givesWhatIsThereOfAFileThatIsCutShort) {
    EXPECT_EQ(charactersOf("{\\rtf1 one {\\b two"), "one two");
    EXPECT_EQ(charactersOf("{\\rtf1 one\\'e"), "one\x0E");
    EXPECT_EQ(charactersOf("{\\rtf1 one\\"), "one");
    EXPECT_EQ(charactersOf("{\\rtf1 one{\\footnote two"), "one\ntwo");
    EXPECT_EQ(charactersOf("{\\rtf"), "");
}

TEST(RtfReader, refusesBytesThatAreNoRtf) {
    EXPECT_EQ(faultOf("plain", Format::rtf), ReadFault::unknownFormat);
    EXPECT_EQ(faultOf("{\\rt", Format::rtf), ReadFault::unknownFormat);
}

TEST(RtfReader, refusesGroupsNestedAHundredThousandDeep) {
    EXPECT_EQ(faultOf("{\\rtf1" + std::string(100000, '{')), ReadFault::tooComplex);
    const std::string deep = std::string(4000, '{') + "deep" + std::string(4000, '}');
    EXPECT_EQ(read(deep), "deep");
}

TEST(RtfReader, survivesHostileNumbers) {
    EXPECT_EQ(read("\\u99999999999999999999?a\\uc-4\\u233 b\\cf99999999999 c\\f-99999999999 d\\uc99999999 e"),
              "\uFFFDaébcde");
}

TEST(RtfReader, survivesEveryBeginningOfAFile) {
    readEveryBeginning(
        "{\\rtf1\\ansi\\ansicpg932\\uc2{\\fonttbl{\\f0\\fcharset128 A;}}{\\colortbl;\\red1;}\\f0 "
        "\\'93\\'fa\\u26085\\'93\\'fa{\\*\\lxeol13}\\par\\u-10179??\\u-8704??{\\footnote x}"
        "\\trowd\\cell\\row\\bin4 abcd}");
}

} // namespace
} // namespace lexiform::document
