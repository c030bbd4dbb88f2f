#include "platform/qt/documents/OpenFailure.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(OpenFailure, namesTheFileAndTheReason) {
    const FailureMessage message = messageFor({{"/home/ida/lost.txt", OpenFault::missing}});
    EXPECT_EQ(message.heading, "“lost.txt” could not be opened.");
    EXPECT_EQ(message.reasons, "There is no such file.");
}

TEST(OpenFailure, namesEveryFileOfSeveral) {
    const FailureMessage message =
        messageFor({{"/tmp/a.txt", OpenFault::refused}, {"/tmp/folder", OpenFault::folder}});
    EXPECT_EQ(message.heading, "2 files could not be opened.");
    EXPECT_EQ(message.reasons, "“a.txt”: The file is empty.\n“folder”: It is a folder.");
}

TEST(OpenFailure, namesAPathWithoutAName) {
    EXPECT_EQ(messageFor({{"/", OpenFault::folder}}).heading, "“/” could not be opened.");
}

TEST(OpenFailure, takesAPercentSignForWhatItIs) {
    EXPECT_EQ(messageFor({{"/tmp/%1 of %2.txt", OpenFault::missing}}).heading,
              "“%1 of %2.txt” could not be opened.");
    EXPECT_EQ(messageFor({{"%1", OpenFault::missing}, {"%2", OpenFault::missing}}).reasons,
              "“%1”: There is no such file.\n“%2”: There is no such file.");
}

} // namespace
} // namespace lexiform::qt
