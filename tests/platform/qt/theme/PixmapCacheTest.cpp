#include "platform/qt/theme/pixmapCache.h"

#include <QPixmap>
#include <QPixmapCache>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace lexiform::qt {
namespace {

TEST(PixmapCache, keepsTheIconsOfAWindowAndNotThoseOfManyDialogs) {
    limitPixmapCache();
    constexpr int iconsOfAWindow = 40;
    constexpr int side = 64; // of an icon on a screen of twice the density
    std::vector<QPixmapCache::Key> keys;
    const auto insertIcons = [&] {
        for (int icon = 0; icon < iconsOfAWindow; ++icon) {
            QPixmap drawn(side, side);
            drawn.fill(Qt::red);
            keys.push_back(QPixmapCache::insert(drawn));
        }
    };
    const auto kept = [&] {
        QPixmap found;
        return std::count_if(keys.begin(), keys.end(),
                             [&](const QPixmapCache::Key& key) { return QPixmapCache::find(key, &found); });
    };

    insertIcons();
    EXPECT_EQ(kept(), iconsOfAWindow);
    for (int dialog = 0; dialog < 20; ++dialog)
        insertIcons();
    EXPECT_GE(kept(), iconsOfAWindow);
    EXPECT_LE(kept(), 2 * iconsOfAWindow);
}

} // namespace
} // namespace lexiform::qt
