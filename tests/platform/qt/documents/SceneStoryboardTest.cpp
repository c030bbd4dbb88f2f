#include "platform/qt/documents/SceneStoryboard.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(SceneStoryboard, hasNoSceneThatWasNotAdded) {
    SceneStoryboard storyboard;
    EXPECT_FALSE(storyboard.instantiateController("Document Window Controller"));
}

TEST(SceneStoryboard, makesANewDocumentWindowEachTime) {
    DesktopUnderTest desktop;
    const auto make = [&] {
        return std::dynamic_pointer_cast<WindowController>(
            desktop.storyboard->instantiateController("Document Window Controller"));
    };
    const auto first = make();
    const auto second = make();
    ASSERT_TRUE(first && second);
    EXPECT_NE(first->contentViewController(), second->contentViewController());
    EXPECT_TRUE(std::dynamic_pointer_cast<ViewController>(first->contentViewController()));
}

} // namespace
} // namespace lexiform::qt
