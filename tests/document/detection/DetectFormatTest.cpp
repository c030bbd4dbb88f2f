#include "document/detection/detectFormat.h"

#include "tests/document/support/Read.h"
#include "tests/document/support/Zip.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::document {
namespace {

using namespace std::string_literals;

TEST(DetectFormat, knowsRtfAndPagesByTheirBeginning) {
    EXPECT_EQ(detectFormat("{\\rtf1 a}"), Format::rtf);
    EXPECT_EQ(detectFormat("{\\rt a}"), Format::plainText);
    for (const std::string page :
         {"<!DOCTYPE html><p>", "\n <HTML>", "<!-- x --><html lang=en>", "<p>text", "<meta charset=x>",
          "<?xml version=\"1.0\"?><!doctype\nhtml>", "\xEF\xBB\xBF<body>"})
        EXPECT_EQ(detectFormat(page), Format::html) << page;
}

TEST(DetectFormat, takesOtherMarkupForPlainText) {
    for (const std::string text :
         {"<note>", "<", "< p>", "<?xml version=\"1.0\"?><note/>", "<pa>", "a <p>", "<!-- never ended"})
        EXPECT_EQ(detectFormat(text), Format::plainText) << text;
}

TEST(DetectFormat, looksIntoPackages) {
    EXPECT_EQ(detectFormat(zipOf({{"mimetype", "application/vnd.oasis.opendocument.text"}})), Format::odt);
    EXPECT_EQ(detectFormat(zipOf({{"mimetype", "application/epub+zip"}})), Format::epub);
    EXPECT_EQ(detectFormat(zipOf({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}})),
              std::nullopt);
    EXPECT_EQ(detectFormat(zipOf({{"readme.txt", "text"}})), std::nullopt);
    EXPECT_EQ(detectFormat("PK\x03\x04 no archive"), std::nullopt);
}

TEST(DetectFormat, rejectsWhatIsNoneOfThese) {
    for (const std::string& bytes : {"%PDF-1.7\n"s, "\x89PNG\r\n"s, "\xD0\xCF\x11\xE0\xA1"s, "\x1F\x8B\x08"s,
                                     "\x7F"
                                     "ELF"s,
                                     ""s})
        EXPECT_EQ(faultOf(bytes), ReadFault::unknownFormat);
    EXPECT_EQ(faultOf("\x01\x02\x80\xFF"), ReadFault::unknownFormat);
    EXPECT_EQ(faultOf(std::string(1000, '\0')), ReadFault::unknownFormat);
}

TEST(ReadAttributedText, readsInTheFormatThatItIsTold) {
    EXPECT_EQ(charactersOf("<p>a</p>", Format::plainText), "<p>a</p>");
    EXPECT_EQ(charactersOf("a &amp; b", Format::html), "a & b\n");
    EXPECT_EQ(faultOf("a", Format::odt), ReadFault::damaged);
    EXPECT_EQ(faultOf("a", Format::docx), ReadFault::damaged);
    EXPECT_EQ(faultOf("a", Format::epub), ReadFault::damaged);
}

TEST(ReadAttributedText, givesPlainTextItsCharactersInTheTextColour) {
    const auto text = readAttributedText("caf\xE9");
    ASSERT_TRUE(text.succeeded());
    EXPECT_EQ(text.value(), AttributedText("café", Colour::text));
}

} // namespace
} // namespace lexiform::document
