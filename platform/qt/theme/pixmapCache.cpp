#include "platform/qt/theme/pixmapCache.h"

#include <QPixmapCache>

namespace lexiform::qt {

namespace {

// Room for the icons of every bar and menu on a screen of twice the density.
constexpr int kilobytes = 1024;

} // namespace

void limitPixmapCache() {
    QPixmapCache::setCacheLimit(kilobytes);
}

} // namespace lexiform::qt
