#include "platform/qt/documents/RememberedFiles.h"

#include "platform/qt/adapters/fileOfPlainValues.h"

#include <QFileInfo>

namespace lexiform::qt {

namespace {

const QString recentKey = QStringLiteral("files/recent");
const QString sessionKey = QStringLiteral("files/session");
const QString reopensKey = QStringLiteral("files/reopen");

} // namespace

RememberedFiles::RememberedFiles(const QString& path)
    : settings_(fileOfPlainValues(path), QSettings::IniFormat) {}

QStringList RememberedFiles::recent() const {
    return existing(recentKey).mid(0, mostRecent); // other programs can write the file too
}

void RememberedFiles::noteOpened(const QString& path) {
    settings_.sync();
    QStringList paths = settings_.value(recentKey).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    settings_.setValue(recentKey, paths.mid(0, mostRecent));
    settings_.sync();
}

void RememberedFiles::clearRecent() {
    settings_.remove(recentKey);
    settings_.sync();
}

bool RememberedFiles::reopens() const {
    settings_.sync();
    return settings_.value(reopensKey).toString() == QLatin1String("true");
}

void RememberedFiles::setReopens(bool reopens) {
    settings_.setValue(reopensKey, QLatin1String(reopens ? "true" : "false"));
    settings_.sync();
}

QStringList RememberedFiles::session() const {
    return existing(sessionKey);
}

void RememberedFiles::setSession(const QStringList& paths) {
    settings_.setValue(sessionKey, paths);
    settings_.sync();
}

QStringList RememberedFiles::existing(const QString& key) const {
    settings_.sync();
    QStringList paths = settings_.value(key).toStringList();
    paths.removeIf([](const QString& path) { return !QFileInfo(path).isFile(); });
    return paths;
}

} // namespace lexiform::qt
