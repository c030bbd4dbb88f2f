#include "platform/qt/documents/saveFile.h"

#include "platform/qt/documents/writeInPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace lexiform::qt {

namespace {

SaveFault faultOf(const QSaveFile& file) {
    return {QCoreApplication::translate("saveFile", "%1.").arg(file.errorString())};
}

// A disk that fills up takes a part, and tells what is wrong when it is asked to take the rest.
bool writeAll(QSaveFile& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const qint64 count = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

Outcome<Done, SaveFault> saveFile(const QString& path, std::string_view bytes) {
    const QFileInfo info(path);
    if (info.isDir())
        return SaveFault{QCoreApplication::translate("saveFile", "There is a folder of that name.")};
    if (info.exists() && !info.isFile())
        return SaveFault{QCoreApplication::translate("saveFile", "It is not an ordinary file.")};
    if (info.exists() && !info.isWritable())
        return SaveFault{QCoreApplication::translate("saveFile", "The file may only be read.")};
    if (!info.absoluteDir().exists())
        return SaveFault{QCoreApplication::translate("saveFile", "Its folder is no longer there.")};
    if (hasOtherNames(path)) return writeInPlace(path, bytes);

    QSaveFile file(path);
    // Without a buffer, of which a commit takes no notice: on a full disk it would put an empty file in the
    // place of the old one. Nor does it when the disk turns out to be full or broken only when it is reached.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return faultOf(file);
    if (!writeAll(file, bytes)) return faultOf(file);
    if (fsync(file.handle()) != 0)
        return SaveFault{QCoreApplication::translate("saveFile", "%1.").arg(qt_error_string())};
    if (!file.commit()) return faultOf(file);
    return Done{};
}

} // namespace lexiform::qt
