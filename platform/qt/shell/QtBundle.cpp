#include "platform/qt/shell/QtBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace lexiform::qt {

namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QtBundle::QtBundle(const QString& version, QString resources)
    : information_{{"CFBundleName", std::string("Lexiform")},
                   {"CFBundleShortVersionString", version.toStdString()}},
      resources_(std::move(resources)) {}

std::optional<std::string> QtBundle::urlForResource(std::string_view name, std::string_view extension) const {
    const QFileInfo file(QDir(resources_), fromUtf8(name) + u'.' + fromUtf8(extension));
    if (!file.isFile()) return std::nullopt;
    return file.absoluteFilePath().toStdString();
}

QString resourceFolder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/lexiform"));
}

} // namespace lexiform::qt
