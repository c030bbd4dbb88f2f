#include "tools/lexiform-cli/TagCommand.h"

#include "tools/lexiform-cli/CommandLine.h"
#include "tools/lexiform-cli/InputText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace lexiform::cli {
namespace {

namespace fs = std::filesystem;

/// A folder of its own for each test, removed afterwards.
class TagCommand : public testing::Test {
protected:
    TagCommand() {
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::temp_directory_path() / (std::string("lexiform-cli-") + info->name());
        fs::create_directories(folder_);
    }
    ~TagCommand() override { fs::remove_all(folder_); }

    std::string file(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return (folder_ / name).string();
    }

    /// Runs the command; fills `out` and `errors`.
    int run(const TagRequest& request) {
        const std::string outName = (folder_ / "out").string();
        const std::string errorsName = (folder_ / "errors").string();
        std::FILE* const outFile = std::fopen(outName.c_str(), "wb");
        std::FILE* const errorsFile = std::fopen(errorsName.c_str(), "wb");
        const linguistics::Engine engine(
            std::make_shared<const linguistics::ModelStore>(std::vector<fs::path>{LEXIFORM_MODELS_DIR}));
        const int status = tag(request, engine, outFile, errorsFile);
        std::fclose(outFile);
        std::fclose(errorsFile);
        out = contentOf(outName);
        errors = contentOf(errorsName);
        return status;
    }

    static std::string contentOf(const std::string& name) {
        std::ostringstream content;
        content << std::ifstream(name, std::ios::binary).rdbuf();
        return content.str();
    }

    std::string out;
    std::string errors;

private:
    fs::path folder_;
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
    EXPECT_NE(out.find("\tcat\t_\tNOUN\tNoun\t"), std::string::npos);
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

int statusOf(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "lexiform-cli");
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    return request.succeeded() ? -1 : request.fault().status;
}

TEST(CommandLine, understandsTheTagCommand) {
    const std::vector<const char*> arguments = {"lexiform-cli", "tag",   "--format", "ansi",
                                                "--key",        "a.txt", "-"};
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    ASSERT_TRUE(request.succeeded());
    EXPECT_EQ(request.value().format, "ansi");
    EXPECT_TRUE(request.value().withKey);
    EXPECT_EQ(request.value().files, (std::vector<std::string>{"a.txt", "-"}));
}

TEST(CommandLine, exitsWithTwoWhenItIsMisused) {
    EXPECT_EQ(statusOf({}), 2);
    EXPECT_EQ(statusOf({"paint"}), 2);
    EXPECT_EQ(statusOf({"tag", "--format", "pdf"}), 2);
    EXPECT_EQ(statusOf({"tag", "--colour"}), 2);
    EXPECT_EQ(statusOf({"tag", "--key"}), 2);
}

TEST(CommandLine, exitsWithNothingWrongAfterHelpAndVersion) {
    EXPECT_EQ(statusOf({"--help"}), 0);
    EXPECT_EQ(statusOf({"tag", "--help"}), 0);
    const char* const arguments[] = {"lexiform-cli", "--version"};
    EXPECT_EQ(parseCommandLine(2, arguments, "1.2.3").fault().message, "lexiform-cli 1.2.3\n");
}

} // namespace
} // namespace lexiform::cli
