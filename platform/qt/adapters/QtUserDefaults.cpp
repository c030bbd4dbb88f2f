#include "platform/qt/adapters/QtUserDefaults.h"

#include "platform/qt/adapters/fileOfPlainValues.h"

namespace lexiform::qt {

namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QtUserDefaults::QtUserDefaults(const QString& path)
    : settings_(fileOfPlainValues(path), QSettings::IniFormat) {}

std::optional<std::string> QtUserDefaults::stringForKey(std::string_view key) const {
    const QVariant value = read(key);
    if (!value.isValid()) return std::nullopt;
    return value.toString().toStdString();
}

void QtUserDefaults::setString(std::string_view value, std::string_view key) {
    write(fromUtf8(value), key);
}

bool QtUserDefaults::boolForKey(std::string_view key) const {
    return read(key).toBool();
}

void QtUserDefaults::setBool(bool value, std::string_view key) {
    write(value, key);
}

double QtUserDefaults::doubleForKey(std::string_view key) const {
    return read(key).toDouble();
}

// The file gets the fewest digits that give the same number back.
void QtUserDefaults::setDouble(double value, std::string_view key) {
    write(value, key);
}

QVariant QtUserDefaults::read(std::string_view key) const {
    settings_.sync();
    return settings_.value(fromUtf8(key));
}

void QtUserDefaults::write(const QVariant& value, std::string_view key) {
    settings_.setValue(fromUtf8(key), value);
    settings_.sync();
}

} // namespace lexiform::qt
