#include "platform/qt/adapters/QtUserDefaults.h"

namespace lexiform::qt {

namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QtUserDefaults::QtUserDefaults(const QString& path) : settings_(path, QSettings::IniFormat) {}

std::optional<std::string> QtUserDefaults::stringForKey(std::string_view key) const {
    const QString name = fromUtf8(key);
    settings_.sync();
    if (!settings_.contains(name)) return std::nullopt;
    return settings_.value(name).toString().toStdString();
}

void QtUserDefaults::setString(std::string_view value, std::string_view key) {
    settings_.setValue(fromUtf8(key), fromUtf8(value));
    settings_.sync();
}

} // namespace lexiform::qt
