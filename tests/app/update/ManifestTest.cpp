#include "tests/app/ShellUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

/// An entry in the old text form.
std::string entry(const std::string& name, const std::string& version, const std::string& address) {
    return "{ AppName = \"" + name + "\"; Version = \"" + version + "\"; URL = \"" + address + "\"; }";
}

std::string ownEntry(const std::string& version, const std::string& address = "https://maker.example/get/x") {
    return entry("Lexiform", version, address);
}

class Manifest : public testing::Test {
protected:
    /// A check of version 1.0.0 that is answered with a manifest.
    void check(const std::string& manifest) {
        shell.delegate->checkForUpdate();
        shell.answerWith(manifest);
    }
    [[nodiscard]] bool isMarked() const {
        return shell.application->titles.back() == "Checked for update" &&
               shell.application->state == MenuItem::State::on;
    }

    ShellUnderTest shell;
};
using ManifestDeathTest = Manifest;

TEST_F(Manifest, offersAnotherVersion) {
    check("(" + ownEntry("1.1.0") + ")");
    EXPECT_EQ(
        shell.alerts,
        (std::vector<ShownAlert>{
            {"An update to this app to version 1.1.0 is available.",
             "You are currently running Lexiform version 1.0.0.\nPlease choose whether to download this "
             "update now in your default browser.",
             Alert::Style::informational,
             {"Ignore", "Download"}}}));
    EXPECT_TRUE(isMarked());
    EXPECT_TRUE(shell.workspace->opened.empty());
}

TEST_F(Manifest, opensTheDownloadForTheSecondButtonAlone) {
    shell.pressed = Alert::Response::secondButton;
    check("(" + ownEntry("1.1.0") + ")");
    EXPECT_EQ(shell.workspace->opened, std::vector<std::string>{"https://maker.example/get/x"});
    shell.pressed = Alert::Response::thirdButton;
    check("(" + ownEntry("1.1.0") + ")");
    EXPECT_EQ(shell.workspace->opened.size(), 1U);
}

TEST_F(Manifest, ignoresThatTheBrowserCouldNotBeOpened) {
    shell.pressed = Alert::Response::secondButton;
    shell.workspace->succeeds = false;
    check("(" + ownEntry("1.1.0") + ")");
    EXPECT_EQ(shell.alerts.size(), 1U);
}

TEST_F(Manifest, offersAnOlderVersionAndOneThatOnlyLooksTheSame) {
    for (const char* version : {"0.9.9", "1.0", "1.0.0 ", "01.0.0"})
        check("(" + ownEntry(version) + ")");
    EXPECT_EQ(shell.alerts.size(), 4U);
}

TEST_F(Manifest, marksTheMenuAndOffersNothingForTheRunningVersion) {
    check("(" + ownEntry("1.0.0") + ")");
    EXPECT_TRUE(shell.alerts.empty());
    EXPECT_TRUE(isMarked());
}

TEST_F(Manifest, marksTheMenuOnce) {
    check("(" + ownEntry("1.1.0") + ", " + ownEntry("1.2.0") + ")");
    EXPECT_EQ(shell.application->titles,
              (std::vector<std::string>{"Update not checked", "Checked for update"}));
    EXPECT_EQ(shell.alerts.size(), 2U);
}

TEST_F(Manifest, goesOnWithoutAHelpMenuOrItsItem) {
    shell.application->hasMenu = false;
    check("(" + ownEntry("1.1.0") + ")");
    shell.application->hasMenu = true;
    shell.application->titles = {"About"};
    check("(" + ownEntry("1.1.0") + ")");
    EXPECT_EQ(shell.alerts.size(), 2U);
    EXPECT_EQ(shell.application->titles, std::vector<std::string>{"About"});
}

TEST_F(Manifest, skipsTheEntriesOfOtherApplicationsUnread) {
    check("({ AppName = Lexigraph; Version = (1); }, { AppName = lexiform; }, { AppName = \"Lexiform \"; })");
    EXPECT_TRUE(shell.alerts.empty());
    EXPECT_FALSE(isMarked());
}

TEST_F(Manifest, offersNothingOutsideTheDownloadSite) {
    for (const char* address : {"https://other.example/get/x", "http://maker.example/get/x",
                                "https://maker.example/get", "https://MAKER.example/get/x", ""})
        check("(" + ownEntry("1.1.0", address) + ")");
    EXPECT_TRUE(shell.alerts.empty());
    EXPECT_TRUE(isMarked());
}

TEST_F(Manifest, offersAnAddressThatNamesTheDownloadSiteAnywhere) {
    shell.pressed = Alert::Response::secondButton;
    check("(" + ownEntry("1.1.0", "https://other.example/?to=https://maker.example/get/x") + ")");
    EXPECT_EQ(shell.workspace->opened,
              std::vector<std::string>{"https://other.example/?to=https://maker.example/get/x"});
}

TEST_F(Manifest, tellsOfABodyThatIsNoPropertyList) {
    for (const char* body : {"", "<!DOCTYPE html><html><body>Not found</body></html>", "<plist><array>"})
        check(body);
    const ShownAlert badList = {
        "An error occurred:", "Error in update Property List.", Alert::Style::critical, {"OK"}};
    EXPECT_EQ(shell.alerts, std::vector<ShownAlert>(3, badList));
    EXPECT_FALSE(isMarked());
}

TEST_F(Manifest, tellsOfAListWithoutEntries) {
    check("<plist version=\"1.0\"><array/></plist>");
    EXPECT_EQ(
        shell.alerts,
        (std::vector<ShownAlert>{
            {"An error occurred:", "Update Property List has no entries.", Alert::Style::critical, {"OK"}}}));
    EXPECT_FALSE(isMarked());
}

TEST_F(ManifestDeathTest, stopsAtAnAcceptedAnswerWithoutABody) {
    shell.delegate->checkForUpdate();
    EXPECT_DEATH(shell.answer(std::nullopt, UrlResponse{200, "text/xml"}), "absent");
}

TEST_F(ManifestDeathTest, stopsAtAnotherStructure) {
    EXPECT_DEATH(check("{ AppName = Lexiform; }"), "no array");
    EXPECT_DEATH(check("word"), "no array");
    EXPECT_DEATH(check("(" + ownEntry("1.0.0") + ", word)"), "no dictionary");
}

TEST_F(ManifestDeathTest, stopsAtAnEntryWithoutItsNameEvenAfterTheMatch) {
    EXPECT_DEATH(check("({ Version = 1; URL = x; })"), "lacks a key");
    EXPECT_DEATH(check("(" + ownEntry("1.1.0") + ", { Version = 1; })"), "alert;.*lacks a key");
    EXPECT_DEATH(check("({ AppName = (Lexiform); })"), "no string");
}

TEST_F(ManifestDeathTest, stopsAtTheOwnEntryWithoutVersionOrAddress) {
    EXPECT_DEATH(check("({ AppName = Lexiform; URL = x; })"), "lacks a key");
    EXPECT_DEATH(check("({ AppName = Lexiform; Version = \"1.0.0\"; })"), "lacks a key");
    EXPECT_DEATH(check("({ AppName = Lexiform; Version = <01>; URL = x; })"), "no string");
    EXPECT_DEATH(check("({ AppName = Lexiform; Version = 2; URL = (x); })"), "no string");
}

TEST_F(ManifestDeathTest, stopsAtADownloadThatIsNoAddress) {
    shell.pressed = Alert::Response::secondButton;
    EXPECT_DEATH(check("(" + ownEntry("1.1.0", "https://maker.example/get/a b") + ")"), "alert;.*absent");
}

TEST_F(Manifest, leavesAnAddressThatIsNoneAloneWhenItIsNotWanted) {
    check("(" + ownEntry("1.1.0", "https://maker.example/get/a b") + ")");
    EXPECT_EQ(shell.alerts.size(), 1U);
}

} // namespace
} // namespace lexiform
