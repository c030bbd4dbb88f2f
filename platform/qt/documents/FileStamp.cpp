#include "platform/qt/documents/FileStamp.h"

#include <QFileInfo>

namespace lexiform::qt {

FileStamp stampOf(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) return {};
    return {info.size(), info.lastModified()};
}

} // namespace lexiform::qt
