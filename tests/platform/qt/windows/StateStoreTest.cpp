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
}

TEST_F(StateStoreTest, remembersFromOneRunToTheNext) {
    {
        StateStore store(path);
        store.setWindowSize({1000, 700});
        store.setPaneSizes({300, 310, 152, 200});
        store.setAppearance(AppearanceChoice::dark);
    }
    const StateStore store(path);
    EXPECT_EQ(store.windowSize(), QSize(1000, 700));
    EXPECT_EQ(store.paneSizes(), (QList<int>{300, 310, 152, 200}));
    EXPECT_EQ(store.appearance(), AppearanceChoice::dark);
}

TEST_F(StateStoreTest, takesNonsenseForNothing) {
    write("appearance=mauve\n[window]\nwidth=wide\nheight=-4\npanes=300, x, 5, 5\n");
    const StateStore store(path);
    EXPECT_FALSE(store.windowSize().isValid());
    EXPECT_TRUE(store.paneSizes().isEmpty());
    EXPECT_EQ(store.appearance(), AppearanceChoice::system);
}

} // namespace
} // namespace lexiform::qt
