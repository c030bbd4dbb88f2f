#include "platform/qt/windows/StateStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class StateStoreTest : public testing::Test {
protected:
    void write(const QByteArray& content) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("state.ini");
};

TEST_F(StateStoreTest, remembersNothingAtFirst) {
    const StateStore store(path);
    EXPECT_FALSE(store.windowSize("window").isValid());
    EXPECT_TRUE(store.paneSizes().isEmpty());
    EXPECT_EQ(store.appearance(), AppearanceChoice::system);
    EXPECT_TRUE(store.paneZooms().isEmpty());
    EXPECT_TRUE(store.wrapsLines("input"));
    EXPECT_FALSE(store.windowPlace("window"));
    EXPECT_FALSE(store.windowIsMaximised("window"));
    EXPECT_EQ(store.classMarks(), ClassMarks());
}

TEST_F(StateStoreTest, remembersFromOneRunToTheNext) {
    {
        StateStore store(path);
        store.setWindowSize("window", {1000, 700});
        store.setPaneSizes({300, 310, 152, 200});
        store.setAppearance(AppearanceChoice::dark);
        store.setPaneZooms({2, -1, 0, 0});
        store.setWrapsLines("output", false);
        store.setWindowPlace("window", {-40, 60});
        store.setWindowIsMaximised("window", true);
        store.setClassMarks({.palette = ClassPalette::colourBlind, .underlined = true});
    }
    const StateStore store(path);
    EXPECT_EQ(store.windowSize("window"), QSize(1000, 700));
    EXPECT_EQ(store.paneSizes(), (QList<int>{300, 310, 152, 200}));
    EXPECT_EQ(store.appearance(), AppearanceChoice::dark);
    EXPECT_EQ(store.paneZooms(), (QList<int>{2, -1, 0, 0}));
    EXPECT_FALSE(store.wrapsLines("output"));
    EXPECT_TRUE(store.wrapsLines("input"));
    EXPECT_EQ(store.windowPlace("window"), QPoint(-40, 60));
    EXPECT_FALSE(store.windowPlace("help"));
    EXPECT_TRUE(store.windowIsMaximised("window"));
    EXPECT_EQ(store.classMarks(), (ClassMarks{.palette = ClassPalette::colourBlind, .underlined = true}));
}

TEST_F(StateStoreTest, takesNonsenseForNothing) {
    write("appearance=mauve\n[window]\nwidth=wide\nheight=-4\npanes=300, x, 5, 5\nzoom=1, large, 0, "
          "0\nleft=5\ntop=low\nmaximised=3\n"
          "[classes]\npalette=7\nunderlined=perhaps\n");
    const StateStore store(path);
    EXPECT_FALSE(store.windowSize("window").isValid());
    EXPECT_TRUE(store.paneSizes().isEmpty());
    EXPECT_TRUE(store.paneZooms().isEmpty());
    EXPECT_EQ(store.appearance(), AppearanceChoice::system);
    EXPECT_FALSE(store.windowPlace("window"));
    EXPECT_FALSE(store.windowIsMaximised("window"));
    EXPECT_EQ(store.classMarks(), ClassMarks());
}

} // namespace
} // namespace lexiform::qt
