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
    EXPECT_FALSE(store.windowSize().isValid());
    EXPECT_TRUE(store.paneSizes().isEmpty());
    EXPECT_EQ(store.appearance(), AppearanceChoice::system);
    EXPECT_TRUE(store.paneZooms().isEmpty());
    EXPECT_TRUE(store.wrapsLines("input"));
}

TEST_F(StateStoreTest, remembersFromOneRunToTheNext) {
    {
        StateStore store(path);
        store.setWindowSize({1000, 700});
        store.setPaneSizes({300, 310, 152, 200});
        store.setAppearance(AppearanceChoice::dark);
        store.setPaneZooms({2, -1, 0, 0});
        store.setWrapsLines("output", false);
    }
    const StateStore store(path);
    EXPECT_EQ(store.windowSize(), QSize(1000, 700));
    EXPECT_EQ(store.paneSizes(), (QList<int>{300, 310, 152, 200}));
    EXPECT_EQ(store.appearance(), AppearanceChoice::dark);
    EXPECT_EQ(store.paneZooms(), (QList<int>{2, -1, 0, 0}));
    EXPECT_FALSE(store.wrapsLines("output"));
    EXPECT_TRUE(store.wrapsLines("input"));
}

TEST_F(StateStoreTest, takesNonsenseForNothing) {
    write("appearance=mauve\n[window]\nwidth=wide\nheight=-4\npanes=300, x, 5, 5\nzoom=1, large, 0, 0\n");
    const StateStore store(path);
    EXPECT_FALSE(store.windowSize().isValid());
    EXPECT_TRUE(store.paneSizes().isEmpty());
    EXPECT_TRUE(store.paneZooms().isEmpty());
    EXPECT_EQ(store.appearance(), AppearanceChoice::system);
}

} // namespace
} // namespace lexiform::qt
