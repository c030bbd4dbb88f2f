#include "platform/qt/documents/sameFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace lexiform::qt {

namespace {

QString plainPath(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

std::filesystem::path onDisk(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

} // namespace

bool isSameFile(const QString& one, const QString& other) {
    if (plainPath(one) == plainPath(other)) return true;
    std::error_code ignored; // a file that is not there is no other
    return std::filesystem::equivalent(onDisk(one), onDisk(other), ignored);
}

} // namespace lexiform::qt
