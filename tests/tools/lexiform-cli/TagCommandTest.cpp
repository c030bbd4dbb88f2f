#include "tools/lexiform-cli/TagCommand.h"

#include "tests/tools/lexiform-cli/CommandTest.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

namespace lexiform::cli {
namespace {

namespace fs = std::filesystem;

class TagCommand : public CommandTest {
protected:
    int run(const TagRequest& request) {
        return runWith([&](const auto& engine, std::FILE* outFile, std::FILE* errorsFile) {
            return tag(request, *engine, outFile, errorsFile);
        });
    }
};

std::string joinedForms(const std::string& conllu) {
    std::string joined;
    std::istringstream lines(conllu);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#') continue;
        const std::size_t form = line.find('\t') + 1;
        joined += line.substr(form, line.find('\t', form) - form);
    }
    return joined;
}

TEST_F(TagCommand, tagsAFile) {
    EXPECT_EQ(run({.files = {file("cat.txt", "The cat sat.\n")}}), 0);
    EXPECT_NE(out.find("# text = The cat sat.\n1\tThe\t"), std::string::npos);
    EXPECT_NE(out.find("\tcat\tcat\tNOUN\tNoun\t"), std::string::npos);
    EXPECT_EQ(errors, "");
}

TEST_F(TagCommand, writesFormsThatJoinToTheTextWithoutItsWhiteSpace) {
    const std::string name =
        file("odd.txt", "It's  $5.50…\n\n海は広い。\t🏳️‍🌈 don't\u00A0e\u0301 (x)\r\n");
    EXPECT_EQ(run({.files = {name}}), 0);
    EXPECT_EQ(joinedForms(out), "It's$5.50…海は広い。🏳️‍🌈don'te\u0301(x)");
}

TEST_F(TagCommand, writesNothingForAnEmptyFile) {
    EXPECT_EQ(run({.files = {file("empty.txt", "")}}), 0);
    EXPECT_EQ(out, "");
}

TEST_F(TagCommand, namesTheFileAndTheOffsetOfBytesThatAreNotUtf8) {
    const std::string name = file("latin.txt", "caf\xE9");
    EXPECT_EQ(run({.files = {name}}), 1);
    EXPECT_EQ(errors, "lexiform-cli: " + name + ": not UTF-8: the byte at offset 3 starts no character\n");
    EXPECT_EQ(out, "");
}

TEST_F(TagCommand, goesOnToTheOtherFilesAfterOneThatCannotBeRead) {
    EXPECT_EQ(run({.files = {"/no/such/file", file("cat.txt", "A cat.")}}), 1);
    EXPECT_EQ(errors, "lexiform-cli: /no/such/file: No such file or directory\n");
    EXPECT_NE(out.find("# text = A cat.\n"), std::string::npos);
}

TEST_F(TagCommand, refusesAFolder) {
    const std::string folder = fs::temp_directory_path().string();
    EXPECT_EQ(run({.files = {folder}}), 1);
    EXPECT_EQ(errors, "lexiform-cli: " + folder + ": Is a directory\n");
}

TEST_F(TagCommand, writesTheSameWithAnyNumberOfThreads) {
    std::string text;
    for (int i = 0; text.size() < 900'000; ++i)
        text += "Day " + std::to_string(i) + ": the old sailor said that he'd seen the sea. He left.\n\n";
    const std::string name = file("long.txt", text);
    for (const char* format : {"conllu", "tsv", "json", "ansi"}) {
        EXPECT_EQ(run({.format = format, .files = {name, name}}), 0);
        const std::string alone = out;
        EXPECT_EQ(run({.format = format, .jobs = 3, .files = {name, name}}), 0);
        EXPECT_TRUE(out == alone) << format;
    }
}

TEST_F(TagCommand, countsPlacesThroughTheBlocksOfALongText) {
    std::string text(700'000, 'x');
    for (std::size_t i = 90; i < text.size(); i += 90)
        text[i] = '\n';
    text += "\n\nLast.";
    EXPECT_EQ(run({.format = "tsv", .files = {file("long.txt", text)}}), 0);
    const std::string last = out.substr(out.rfind("\tLast\t"));
    EXPECT_NE(last.find("\t" + std::to_string(text.size() - 5) + "\t4\n"), std::string::npos);
}

TEST_F(TagCommand, addsTheKeyToATextInColours) {
    EXPECT_EQ(run({.format = "ansi", .withKey = true, .files = {file("cat.txt", "A cat.\n")}}), 0);
    EXPECT_NE(out.find("■ conjunction"), std::string::npos);
}

TEST_F(TagCommand, saysWhenItsResultCannotBeWritten) {
    std::FILE* const full = std::fopen("/dev/full", "wb");
    std::FILE* const silent = std::fopen("/dev/null", "wb");
    const linguistics::Engine engine(
        std::make_shared<const linguistics::ModelStore>(std::vector<fs::path>{}));
    EXPECT_EQ(tag({.files = {file("cat.txt", "A cat.")}}, engine, full, silent), 1);
    std::fclose(full);
    std::fclose(silent);
}

} // namespace
} // namespace lexiform::cli
