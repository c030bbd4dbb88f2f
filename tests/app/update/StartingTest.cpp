#include "tests/app/ShellUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

TEST(StartingTheCheck, asksForTheManifestOnceAndReturns) {
    const ShellUnderTest shell;
    shell.delegate->checkForUpdate();
    EXPECT_EQ(shell.session->addresses, std::vector<std::string>{"https://maker.example/versions.plist"});
    EXPECT_EQ(shell.session->started, 1);
    EXPECT_TRUE(shell.alerts.empty());
}

TEST(StartingTheCheck, isSilentWithoutAnInformationDictionary) {
    ShellUnderTest shell;
    for (const auto& information : {std::optional<InfoDictionary>(), std::optional(InfoDictionary())}) {
        shell.bundle->information = information;
        shell.delegate->checkForUpdate();
    }
    EXPECT_TRUE(shell.session->addresses.empty());
    EXPECT_TRUE(shell.alerts.empty());
}

TEST(StartingTheCheck, tellsWhenTheProgramDoesNotSayItsVersion) {
    ShellUnderTest shell;
    shell.bundle->information = InfoDictionary{{"CFBundleName", std::string("Lexiform")}};
    shell.delegate->checkForUpdate();
    EXPECT_EQ(shell.alerts,
              (std::vector<ShownAlert>{{"An error occurred:",
                                        "Can't check for updates:\nNo app version string found.",
                                        Alert::Style::critical,
                                        {"OK"}}}));
    EXPECT_TRUE(shell.session->addresses.empty());
}

TEST(StartingTheCheckDeathTest, stopsAtAVersionThatIsNoString) {
    ShellUnderTest shell;
    shell.bundle->information = InfoDictionary{{"CFBundleShortVersionString", 1.0}};
    EXPECT_DEATH(shell.delegate->checkForUpdate(), "version of the bundle");
}

TEST(StartingTheCheck, keepsTheDelegateUntilTheAnswerHasBeenHandled) {
    ShellUnderTest shell;
    shell.delegate->checkForUpdate();
    const std::weak_ptr<AppDelegate> delegate = shell.delegate;
    shell.delegate.reset();
    EXPECT_FALSE(delegate.expired());
    shell.answerWith("<array/>");
    shell.session->completion = nullptr;
    EXPECT_TRUE(delegate.expired());
    EXPECT_EQ(shell.alerts.size(), 1U);
}

} // namespace
} // namespace lexiform
