#pragma once

#include <QDateTime>
#include <QString>

namespace lexiform::qt {

/// What tells whether a file was written to: its size and the time of its last change.
struct FileStamp {
    qint64 size = -1; ///< -1 for a file that is not there
    QDateTime changed;

    bool operator==(const FileStamp&) const = default;
};

[[nodiscard]] FileStamp stampOf(const QString& path);

} // namespace lexiform::qt
