#include "platform/qt/documents/saveFile.h"

#include "platform/qt/documents/writeInPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace lexiform::qt {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("saveFile", text);
}

SaveFault faultOf(const QSaveFile& file) {
    return {tr("%1.").arg(file.errorString())};
}

// What is short waits in a buffer, and a commit takes no notice when that cannot be written: it would put an
// empty file in the place of the old one. Nor does it when the disk turns out to be full or broken only now.
Outcome<Done, SaveFault> reachDisk(QSaveFile& draft) {
    if (!draft.flush()) return faultOf(draft);
    if (fsync(draft.handle()) != 0) return SaveFault{tr("%1.").arg(qt_error_string())};
    return Done{};
}

} // namespace

Outcome<Done, SaveFault> saveFile(const QString& path, std::string_view bytes) {
    const QFileInfo info(path);
    if (info.isDir()) return SaveFault{tr("There is a folder of that name.")};
    if (info.exists() && !info.isFile()) return SaveFault{tr("It is not an ordinary file.")};
    if (info.exists() && !info.isWritable()) return SaveFault{tr("The file may only be read.")};
    if (!info.absoluteDir().exists()) return SaveFault{tr("Its folder is no longer there.")};
    if (hasOtherNames(path)) return writeInPlace(path, bytes);

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return faultOf(file);
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) != size) return faultOf(file);
    auto reached = reachDisk(file);
    if (!reached.succeeded()) return reached;
    if (!file.commit()) return faultOf(file);
    return Done{};
}

} // namespace lexiform::qt
