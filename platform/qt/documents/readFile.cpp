#include "platform/qt/documents/readFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace lexiform::qt {

namespace {

// The panes count their characters in 32 bits.
constexpr qint64 largestFile = qint64{1} << 30;
constexpr qint64 pieceSize = qint64{1} << 20;

// A file that grows while it is read ends where it began to grow past what a window can show.
Outcome<std::string, OpenFault> readPieces(QFile& file, const ReadObserver& goesOn) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(file.size()));
    for (;;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + static_cast<std::size_t>(pieceSize));
        const qint64 count = file.read(bytes.data() + before, pieceSize);
        bytes.resize(before + static_cast<std::size_t>(std::max<qint64>(count, 0)));
        if (count < 0) return OpenFault::unreadable;
        if (count == 0) return bytes;
        const auto read = static_cast<qint64>(bytes.size());
        if (read > largestFile) return OpenFault::tooLarge;
        if (goesOn && !goesOn(read, file.size())) return OpenFault::cancelled;
    }
}

} // namespace

Outcome<std::string, OpenFault> readFile(const QString& path, const ReadObserver& goesOn) {
    const QFileInfo info(path);
    if (!info.exists()) return OpenFault::missing;
    if (info.isDir()) return OpenFault::folder;
    // A device or a pipe may never end.
    if (!info.isFile()) return OpenFault::notAFile;

    if (info.size() > largestFile) return OpenFault::tooLarge;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return OpenFault::notAllowed;
    return readPieces(file, goesOn);
}

} // namespace lexiform::qt
