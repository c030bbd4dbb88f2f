#include "platform/qt/documents/readFile.h"

#include <QFile>
#include <QFileInfo>

namespace lexiform::qt {

namespace {

// The panes count their characters in 32 bits.
constexpr qint64 largestFile = qint64{1} << 30;

} // namespace

Outcome<std::string, OpenFault> readFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) return OpenFault::missing;
    if (info.isDir()) return OpenFault::folder;
    // A device or a pipe may never end.
    if (!info.isFile()) return OpenFault::notAFile;

    if (info.size() > largestFile) return OpenFault::tooLarge;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return OpenFault::notAllowed;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) return OpenFault::unreadable;
    return bytes.toStdString();
}

} // namespace lexiform::qt
