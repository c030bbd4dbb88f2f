#include "platform/qt/theme/ToolkitFont.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

QFont italic() {
    QFont font(QStringLiteral("Serif"), 9);
    font.setItalic(true);
    return font;
}

TEST(FontNamed, hasTheFamilyAndTheSize) {
    const auto font = fontNamed("Noto Sans 11.5", italic());
    ASSERT_TRUE(font);
    EXPECT_EQ(font->family(), "Noto Sans");
    EXPECT_EQ(font->pointSizeF(), 11.5);
    EXPECT_TRUE(font->italic()) << "as the other is";
    EXPECT_EQ(fontNamed("Sans, 14", italic())->family(), "Sans");
}

TEST(FontNamed, isNoneWithoutASizeThatMakesSense) {
    for (const char* name : {"", " ", "Sans", "11", " 11", "Sans 0", "Sans -3", "Sans 4000", "Sans nan"})
        EXPECT_FALSE(fontNamed(name, italic())) << name;
}

TEST(ToolkitFont, leavesTheFontAloneWhereThereIsNoToolkit) {
    const ToolkitFont font;
    EXPECT_FALSE(Toolkit().hasSettings());
}

} // namespace
} // namespace lexiform::qt
