#include "tools/lexiform-cli/TextCommand.h"

#include "tests/tools/lexiform-cli/CommandTest.h"
#include "tools/lexiform-cli/TagCommand.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace lexiform::cli {
namespace {

class TextCommand : public CommandTest {
protected:
    int run(const TextRequest& request) {
        return runWith([&](const auto& /*engine*/, std::FILE* outFile, std::FILE* errorsFile) {
            return text(request, outFile, errorsFile);
        });
    }
    int runTag(const TagRequest& request) {
        return runWith([&](const auto& engine, std::FILE* outFile, std::FILE* errorsFile) {
            return tag(request, *engine, outFile, errorsFile);
        });
    }
};

TEST_F(TextCommand, writesTheCharactersOfTextsAndDocuments) {
    EXPECT_EQ(run({.files = {file("a.txt", "one\r\n"), file("b.rtf", "{\\rtf1 caf\\'e9\\par}"),
                             file("c.html", "<html><body><p>three"), file("d.text", "caf\xE9"),
                             file("e", std::string("\xFF\xFEo\0k\0\n\0", 8))}}),
              0);
    EXPECT_EQ(out, "one\r\ncafé\nthree\ncaféok\n");
    EXPECT_EQ(errors, "");
}

TEST_F(TextCommand, takesAFileNamedTxtAsUtf8WhateverItHolds) {
    EXPECT_EQ(run({.files = {file("a.txt", "{\\rtf1 a}")}}), 0);
    EXPECT_EQ(out, "{\\rtf1 a}");
    EXPECT_EQ(run({.files = {file("b.txt", "caf\xE9")}}), 1);
    EXPECT_NE(errors.find("not UTF-8: the byte at offset 3"), std::string::npos);
}

TEST_F(TextCommand, takesAFileAsTheTypeThatItIsTold) {
    EXPECT_EQ(run({.type = "html", .files = {file("a.txt", "a &amp; b")}}), 0);
    EXPECT_EQ(out, "a & b\n");
    EXPECT_EQ(run({.type = "plain", .files = {file("b.rtf", "{\\rtf1 a}")}}), 0);
    EXPECT_EQ(out, "{\\rtf1 a}");
    EXPECT_EQ(run({.type = "docx", .files = {file("c.txt", "a")}}), 1);
    EXPECT_NE(errors.find("c.txt: the document is damaged\n"), std::string::npos);
}

TEST_F(TextCommand, saysWhatIsNoTextAndGoesOn) {
    EXPECT_EQ(run({.files = {file("a.pdf", "%PDF-1.7\n"), file("b", std::string(10, '\0')), file("c", "")}}),
              1);
    EXPECT_NE(errors.find("a.pdf: neither a text nor a document of a known format\n"), std::string::npos);
    EXPECT_NE(errors.find("b: neither a text nor a document of a known format\n"), std::string::npos);
    EXPECT_EQ(out, "");
}

TEST_F(TextCommand, givesALongDocumentWhole) {
    std::string rtf = "{\\rtf1 ";
    std::string expected;
    for (int i = 0; i < 200000; ++i) {
        rtf += "word " + std::to_string(i) + "\\par ";
        expected += "word " + std::to_string(i) + "\n";
    }
    EXPECT_EQ(run({.files = {file("long.rtf", rtf + "}")}}), 0);
    EXPECT_EQ(out, expected);
}

TEST_F(TextCommand, readsBackWhatTaggingWroteAsRtfAndHtml) {
    const std::string name = file("cat.txt", "The cat\tsat & <slept>.\n\nIt's {50}…\n");
    EXPECT_EQ(runTag({.format = "rtf", .files = {name}}), 0);
    EXPECT_NE(out.find("\\cf3 cat"), std::string::npos);
    EXPECT_EQ(run({.files = {file("cat.rtf", out)}}), 0);
    EXPECT_EQ(out, contentOf(name));
    EXPECT_EQ(runTag({.format = "html", .files = {name}}), 0);
    EXPECT_NE(out.find("<span style=\"color: #0055d4\">cat"), std::string::npos);
    EXPECT_EQ(run({.files = {file("cat.html", out)}}), 0);
    EXPECT_EQ(out, contentOf(name));
}

TEST_F(TextCommand, tagsTheCharactersOfADocument) {
    EXPECT_EQ(runTag({.files = {file("cat.rtf", "{\\rtf1 The {\\b cat} sat.\\par}")}}), 0);
    EXPECT_NE(out.find("# text = The cat sat.\n"), std::string::npos);
}

} // namespace
} // namespace lexiform::cli
