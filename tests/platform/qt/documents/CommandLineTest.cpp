#include "platform/qt/documents/commandLine.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(CommandLine, givesTheFiles) {
    EXPECT_EQ(filesToOpen({"lexiform", "a.txt", "b c.txt"}), (QStringList{"a.txt", "b c.txt"}));
    EXPECT_TRUE(filesToOpen({"lexiform"}).isEmpty());
}

TEST(CommandLine, takesWhatFollowsTwoDashesForFiles) {
    EXPECT_EQ(filesToOpen({"lexiform", "--", "--version"}), QStringList{"--version"});
    EXPECT_FALSE(asksForText({"lexiform", "--", "--version"}));
}

TEST(CommandLine, knowsTheQuestionsForATerminal) {
    EXPECT_TRUE(asksForText({"lexiform", "--version"}));
    EXPECT_TRUE(asksForText({"lexiform", "a.txt", "-h"}));
    EXPECT_FALSE(asksForText({"lexiform", "a.txt"}));
}

TEST(CommandLine, printsTheVersionAndEnds) {
    EXPECT_EXIT(static_cast<void>(filesToOpen({"lexiform", "--version"})), testing::ExitedWithCode(0), "");
}

TEST(CommandLine, refusesAnOptionThatIsNone) {
    EXPECT_EXIT(static_cast<void>(filesToOpen({"lexiform", "--mauve"})), testing::ExitedWithCode(1), "mauve");
}

} // namespace
} // namespace lexiform::qt
