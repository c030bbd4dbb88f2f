#include "platform/qt/adapters/QtFileWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace lexiform::qt {

namespace {

WriteFault faultOf(const QFile& file) {
    const QFileInfo place(file.fileName());
    return {QCoreApplication::translate("FileWriter", "“%1” could not be saved in “%2”: %3.")
                .arg(place.fileName(), place.path(), file.errorString())
                .toStdString()};
}

} // namespace

Outcome<Done, WriteFault> QtFileWriter::write(const std::string& path, std::string_view bytes) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return faultOf(file);
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) != size || !file.flush()) return faultOf(file);
    return Done{};
}

} // namespace lexiform::qt
