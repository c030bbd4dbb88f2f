#include "document/rtf/RtfWriter.h"

#include "document/rtf/RtfReader.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace lexiform::document {
namespace {

AttributedText coloured(std::initializer_list<std::pair<std::string, Colour>> pieces) {
    AttributedText text;
    for (const auto& [piece, colour] : pieces)
        text.append(piece, colour);
    return text;
}

std::string written(const AttributedText& text) {
    return writeRtf(text, {0, utf16Length(text.string())}).value_or("nothing");
}

/// What is written behind the tables.
std::string bodyOf(const std::string& text) {
    const std::string rtf = written(AttributedText(text, Colour::text));
    const std::string start = "\\cf0 ";
    const std::size_t at = rtf.find(start);
    return at == std::string::npos ? rtf : rtf.substr(at + start.size(), rtf.size() - at - start.size() - 1);
}

void expectTheSameBack(const AttributedText& text) {
    const auto back = readRtf(written(text));
    ASSERT_TRUE(back.succeeded());
    EXPECT_EQ(back.value(), text);
}

TEST(RtfWriter, writesEveryColourIntoItsTable) {
    const std::string rtf =
        written(coloured({{"a", Colour::gray}, {"b", Colour::orange}, {"c", Colour::text}}));
    EXPECT_EQ(rtf,
              "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Noto Sans;}}"
              "{\\colortbl;\\red110\\green110\\blue115;\\red215\\green0\\blue21;\\red0\\green85\\blue212;"
              "\\red26\\green127\\blue55;\\red138\\green63\\blue176;\\red138\\green106\\blue0;"
              "\\red122\\green82\\blue48;\\red211\\green15\\blue110;\\red184\\green74\\blue0;}\n"
              "\\pard\\f0\\fs24\n\\cf1 a\\cf9 b\\cf0 c}");
}

TEST(RtfWriter, escapesWhatIsNoPlainCharacter) {
    EXPECT_EQ(bodyOf("a{b}\\c"), "a\\{b\\}\\\\c");
    EXPECT_EQ(bodyOf("a\tb\nc\fd"), "a\\tab b\\par\nc\\page\nd");
    EXPECT_EQ(bodyOf("tw\u00F6 \u00A0"), "tw\\u246? \\~");
    EXPECT_EQ(bodyOf("\u9101"), "\\u-28415?");
    EXPECT_EQ(bodyOf("😀"), "\\u-10179?\\u-8704?");
}

TEST(RtfWriter, writesEverySecondSpaceInARowByItsNumber) {
    EXPECT_EQ(bodyOf("a b  c   d    e "), "a b \\u32?c \\u32? d \\u32? \\u32?e ");
}

TEST(RtfWriter, marksTheLineEndsThatRtfHasNoWordFor) {
    EXPECT_EQ(bodyOf("a\r\nb"), "a{\\*\\lxeol13}{\\*\\lxeol10}\\par\nb");
    EXPECT_EQ(bodyOf("a\rb"), "a{\\*\\lxeol13}\\par\nb");
    EXPECT_EQ(bodyOf("a\u2028b"), "a{\\*\\lxeol8232}\\line\nb");
}

TEST(RtfWriter, replacesBytesThatAreNotUtf8) {
    EXPECT_EQ(bodyOf("a\xFF"), "a\\u-3?");
}

TEST(RtfWriter, writesAnEmptyText) {
    const auto back = readRtf(written(AttributedText()));
    ASSERT_TRUE(back.succeeded());
    EXPECT_TRUE(back.value().empty());
}

TEST(RtfWriter, isReadBackWithTheSameCharactersAndColours) {
    expectTheSameBack(coloured({{"The ", Colour::text},
                                {"tide", Colour::red},
                                {" comes\n", Colour::text},
                                {"{in}", Colour::blue},
                                {" 1 2", Colour::orange}}));
    expectTheSameBack(coloured({{"\r\n", Colour::red},
                                {"a\r", Colour::blue},
                                {"\nb\u2028", Colour::text},
                                {"\u2029\u0085\v\f\t", Colour::gray}}));
    expectTheSameBack(
        coloured({{"👩‍👩‍👧", Colour::red}, {"日本語", Colour::blue}, {"é\u0301", Colour::pink}}));
    expectTheSameBack(
        coloured({{std::string("\0\x01\x1F\x7F", 4), Colour::brown}, {"\uF0B7\uFFFF", Colour::text}}));
    expectTheSameBack(coloured({{"", Colour::red}, {"\\'e9 \\par", Colour::green}, {"  ", Colour::purple}}));
}

TEST(RtfWriter, isReadBackForEveryCodePoint) {
    std::string all;
    for (char32_t point = 0; point <= 0x10FFFF; point += point < 0x3000 ? 1 : 0x3F) {
        if (point >= 0xD800 && point < 0xE000) continue;
        char bytes[4];
        std::size_t size = 1;
        if (point < 0x80) {
            bytes[0] = static_cast<char>(point);
        } else if (point < 0x800) {
            size = 2;
            bytes[0] = static_cast<char>(0xC0 | (point >> 6U));
            bytes[1] = static_cast<char>(0x80 | (point & 0x3FU));
        } else if (point < 0x10000) {
            size = 3;
            bytes[0] = static_cast<char>(0xE0 | (point >> 12U));
            bytes[1] = static_cast<char>(0x80 | ((point >> 6U) & 0x3FU));
            bytes[2] = static_cast<char>(0x80 | (point & 0x3FU));
        } else {
            size = 4;
            bytes[0] = static_cast<char>(0xF0 | (point >> 18U));
            bytes[1] = static_cast<char>(0x80 | ((point >> 12U) & 0x3FU));
            bytes[2] = static_cast<char>(0x80 | ((point >> 6U) & 0x3FU));
            bytes[3] = static_cast<char>(0x80 | (point & 0x3FU));
        }
        all.append(bytes, size);
    }
    expectTheSameBack(AttributedText(all, Colour::purple));
}

TEST(RtfWriter, countsItsRangeInUtf16) {
    const AttributedText text = coloured({{"a😀b", Colour::red}, {"é😀", Colour::blue}});
    EXPECT_EQ(utf16Length(text.string()), 7U);
    const auto part = [&](std::size_t start, std::size_t length) {
        const auto rtf = writeRtf(text, {start, length});
        if (!rtf) return std::string("nothing");
        const auto back = readRtf(*rtf);
        return back.succeeded() ? back.value().string() : "fault";
    };
    EXPECT_EQ(part(0, 7), "a😀bé😀");
    EXPECT_EQ(part(0, 1), "a");
    EXPECT_EQ(part(1, 2), "😀");
    EXPECT_EQ(part(3, 2), "bé");
    EXPECT_EQ(part(7, 0), "");
    EXPECT_EQ(part(2, 0), "");
}

TEST(RtfWriter, writesACharacterWholeOfWhichTheRangeHasHalf) {
    const AttributedText text("a😀b", Colour::red);
    EXPECT_NE(writeRtf(text, {0, 2}).value_or("").find("a\\u-10179?\\u-8704?}"), std::string::npos);
    EXPECT_NE(writeRtf(text, {2, 1}).value_or("").find(" \\u-10179?\\u-8704?}"), std::string::npos);
}

TEST(RtfWriter, givesNothingForARangePastTheEnd) {
    const AttributedText text("a😀", Colour::red);
    EXPECT_TRUE(writeRtf(text, {0, 3}));
    EXPECT_FALSE(writeRtf(text, {0, 4}));
    EXPECT_FALSE(writeRtf(text, {4, 0}));
    EXPECT_FALSE(writeRtf(text, {static_cast<std::size_t>(-1), 2}));
    EXPECT_FALSE(writeRtf(AttributedText(), {0, 1}));
}

} // namespace
} // namespace lexiform::document
