#include "platform/qt/adapters/fileOfPlainValues.h"

#include <QFile>
#include <QRegularExpression>

namespace lexiform::qt {

namespace {

// A text that begins with an at sign has two of them in the file.
bool holdsObjects(const QString& path) {
    static const QRegularExpression object(QStringLiteral("(?<!@)@(Variant|DateTime)\\("));
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && QString::fromLatin1(file.readAll()).contains(object);
}

} // namespace

QString fileOfPlainValues(const QString& path) {
    if (!holdsObjects(path)) return path;
    const QString aside = path + QStringLiteral(".damaged");
    QFile::remove(aside);
    QFile::rename(path, aside);
    return path;
}

} // namespace lexiform::qt
