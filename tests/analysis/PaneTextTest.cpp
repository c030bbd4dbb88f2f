#include "analysis/putPaneText.h"

#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

TEST(SetInputText, replacesWhatTheInputPaneHeldWhateverItsColours) {
    const WindowUnderTest window;
    window.input->content = {"red before", Colour::red};
    window.controller->setInputText("new");
    EXPECT_EQ(window.input->content, AttributedText("new", Colour::text));
}

TEST(SetInputText, canEmptyTheInputPane) {
    const WindowUnderTest window{"something"};
    window.controller->setInputText("");
    EXPECT_EQ(window.input->content, AttributedText());
}

TEST(AppendOutputText, runsOnDirectlyAfterWhatTheOutputPaneHolds) {
    const WindowUnderTest window;
    window.output->content = {"end", Colour::blue};
    window.controller->appendOutputText("a");
    window.controller->appendOutputText("b");
    AttributedText expected("end", Colour::blue);
    expected.append("ab", Colour::text);
    EXPECT_EQ(window.output->content, expected);
}

TEST(PutPaneText, silentlyGivesNothingToAPaneWithoutTextStorage) {
    const auto pane = std::make_shared<PlainTextPane>("before");
    pane->hasStorage = false;
    putPaneText("after", pane, PaneOperation::replace);
    putPaneText("after", pane, PaneOperation::append);
    EXPECT_EQ(pane->plainText(), "before");
}

TEST(PutPaneTextDeathTest, stopsTheProgramForAnAbsentPane) {
    EXPECT_DEATH(putPaneText("text", nullptr, PaneOperation::replace), "not connected");
    EXPECT_DEATH(putPaneText("text", nullptr, PaneOperation::append), "not connected");
}

} // namespace
} // namespace lexiform
