#include "tests/app/ShellUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

constexpr double now = ShellUnderTest::now;

class Launch : public testing::Test {
protected:
    /// Launches with a last check so many seconds ago.
    void launchAfter(double seconds) {
        shell.defaults->setDouble(now - seconds, "dateLastUpdateCheck");
        shell.launch();
    }
    [[nodiscard]] bool hasChecked() const { return shell.session->started == 1; }
    [[nodiscard]] double lastCheck() const { return shell.defaults->doubleForKey("dateLastUpdateCheck"); }
    [[nodiscard]] double interval() const { return shell.defaults->doubleForKey("updateCheckInt"); }

    ShellUnderTest shell;
};

TEST_F(Launch, checksTheFirstTimeAndStoresThreeWorkingValues) {
    shell.launch();
    EXPECT_TRUE(hasChecked());
    EXPECT_EQ(lastCheck(), now);
    EXPECT_EQ(shell.defaults->bools, (decltype(shell.defaults->bools){{"noUpdateCheck", false}}));
    EXPECT_EQ(interval(), 43200.0);
    EXPECT_EQ(shell.defaults->doubles.size(), 2U);
    EXPECT_TRUE(shell.defaults->strings.empty());
}

TEST_F(Launch, doesNotCheckAgainWithinTwelveHours) {
    launchAfter(43199);
    EXPECT_FALSE(hasChecked());
    EXPECT_EQ(lastCheck(), now - 43199);
    EXPECT_EQ(interval(), 43200.0);
    EXPECT_TRUE(shell.defaults->bools.contains("noUpdateCheck"));
}

TEST_F(Launch, doesNotCheckAfterExactlyTheInterval) {
    launchAfter(43200);
    EXPECT_FALSE(hasChecked());
}

TEST_F(Launch, checksAfterMoreThanTheInterval) {
    launchAfter(43200.5);
    EXPECT_TRUE(hasChecked());
}

TEST_F(Launch, takesLessThanASecondForTwelveHours) {
    for (const double stored : {0.9, 0.5, 0.0, -7.0}) {
        shell.defaults->setDouble(stored, "updateCheckInt");
        launchAfter(43199);
        EXPECT_FALSE(hasChecked()) << stored;
        EXPECT_EQ(interval(), 43200.0) << stored;
    }
}

TEST_F(Launch, keepsAnIntervalOfOneSecond) {
    shell.defaults->setDouble(1.0, "updateCheckInt");
    launchAfter(1.5);
    EXPECT_TRUE(hasChecked());
    EXPECT_EQ(interval(), 1.0);
}

TEST_F(Launch, doesNotCheckWhileTheClockIsBehindTheLastCheck) {
    launchAfter(-1'000'000);
    EXPECT_FALSE(hasChecked());
    EXPECT_EQ(lastCheck(), now + 1'000'000);
}

TEST_F(Launch, neverChecksWhenTheUserHasSwitchedItOff) {
    shell.defaults->setBool(true, "noUpdateCheck");
    launchAfter(now);
    EXPECT_FALSE(hasChecked());
    EXPECT_EQ(lastCheck(), 0.0);
    EXPECT_TRUE(shell.defaults->boolForKey("noUpdateCheck"));
    EXPECT_EQ(interval(), 43200.0);
}

TEST_F(Launch, storesTheTimeAtWhichTheCheckHasBeenStarted) {
    shell.clock->times = {now, now + 2};
    shell.launch();
    EXPECT_EQ(lastCheck(), now + 2);
}

TEST_F(Launch, countsACheckThatCouldNotStart) {
    shell.bundle->information = InfoDictionary{{"CFBundleName", std::string("Lexiform")}};
    shell.launch();
    EXPECT_FALSE(hasChecked());
    EXPECT_EQ(lastCheck(), now);
}

TEST_F(Launch, savesNothingAtTheEnd) {
    shell.delegate->applicationWillTerminate({});
    EXPECT_TRUE(shell.defaults->bools.empty() && shell.defaults->doubles.empty());
}

} // namespace
} // namespace lexiform
