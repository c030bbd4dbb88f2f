#include "tools/lexiform-cli/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace lexiform::cli {
namespace {

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
    const auto& tag = std::get<TagRequest>(request.value().command);
    EXPECT_EQ(tag.format, "ansi");
    EXPECT_TRUE(tag.withKey);
    EXPECT_EQ(tag.files, (std::vector<std::string>{"a.txt", "-"}));
}

TEST(CommandLine, understandsTheConcordanceCommand) {
    const std::vector<const char*> arguments = {"lexiform-cli", "concordance", "--lemmas", "--each", "a.txt"};
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    ASSERT_TRUE(request.succeeded());
    const auto& concordance = std::get<ConcordanceRequest>(request.value().command);
    EXPECT_TRUE(concordance.lemmas);
    EXPECT_TRUE(concordance.each);
    EXPECT_EQ(concordance.files, std::vector<std::string>{"a.txt"});
}

TEST(CommandLine, takesTheNumberOfThreadsAndTheLanguage) {
    const std::vector<const char*> arguments = {"lexiform-cli", "tag", "--jobs", "4", "--language", "pt-BR"};
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    ASSERT_TRUE(request.succeeded());
    EXPECT_EQ(std::get<TagRequest>(request.value().command).jobs, 4U);
    EXPECT_EQ(request.value().language, "pt-BR");
}

TEST(CommandLine, understandsTheLanguageAndTheModelsCommand) {
    const std::vector<const char*> arguments = {"lexiform-cli", "language", "--by", "sentence", "a.txt"};
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    ASSERT_TRUE(request.succeeded());
    EXPECT_EQ(std::get<LanguageRequest>(request.value().command).by, "sentence");
    const char* const models[] = {"lexiform-cli", "models"};
    EXPECT_TRUE(std::holds_alternative<ModelsRequest>(parseCommandLine(2, models, "1.2.3").value().command));
}

TEST(CommandLine, understandsTheTextCommand) {
    const std::vector<const char*> arguments = {"lexiform-cli", "text", "--type", "rtf", "a", "b"};
    const auto request = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), "1.2.3");
    ASSERT_TRUE(request.succeeded());
    const auto& text = std::get<TextRequest>(request.value().command);
    EXPECT_EQ(text.type, "rtf");
    EXPECT_EQ(text.files, (std::vector<std::string>{"a", "b"}));
}

TEST(CommandLine, exitsWithTwoWhenItIsMisused) {
    EXPECT_EQ(statusOf({"text", "--type", "pdf"}), 2);
    EXPECT_EQ(statusOf({}), 2);
    EXPECT_EQ(statusOf({"paint"}), 2);
    EXPECT_EQ(statusOf({"tag", "--format", "pdf"}), 2);
    EXPECT_EQ(statusOf({"tag", "--colour"}), 2);
    EXPECT_EQ(statusOf({"tag", "--key"}), 2);
    EXPECT_EQ(statusOf({"tag", "--jobs", "0"}), 2);
    EXPECT_EQ(statusOf({"tag", "--language", "e n"}), 2);
    EXPECT_EQ(statusOf({"language", "--by", "word"}), 2);
}

TEST(CommandLine, namesAWordThatIsNoCommand) {
    const char* const arguments[] = {"lexiform-cli", "paint"};
    EXPECT_EQ(parseCommandLine(2, arguments, "1.2.3").fault().message,
              "There is no command “paint”.\nRun with --help for those that are.\n");
}

TEST(CommandLine, exitsWithNothingWrongAfterHelpAndVersion) {
    EXPECT_EQ(statusOf({"--help"}), 0);
    EXPECT_EQ(statusOf({"tag", "--help"}), 0);
    const char* const arguments[] = {"lexiform-cli", "--version"};
    EXPECT_EQ(parseCommandLine(2, arguments, "1.2.3").fault().message, "lexiform-cli 1.2.3\n");
}

} // namespace
} // namespace lexiform::cli
