#pragma once

#include "ports/UserDefaults.h"

#include <QSettings>

namespace lexiform::qt {

/// The user's preferences in an INI file. Several windows and several running programs may use the
/// same file: a change is written at once, and what others have changed meanwhile is kept.
class QtUserDefaults : public UserDefaults {
public:
    /// The file at `path` is made on the first change.
    explicit QtUserDefaults(const QString& path);

    [[nodiscard]] std::optional<std::string> stringForKey(std::string_view key) const override;
    void setString(std::string_view value, std::string_view key) override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    void setBool(bool value, std::string_view key) override;
    [[nodiscard]] double doubleForKey(std::string_view key) const override;
    void setDouble(double value, std::string_view key) override;

private:
    /// Invalid when there is none.
    [[nodiscard]] QVariant read(std::string_view key) const;
    void write(const QVariant& value, std::string_view key);

    mutable QSettings settings_; // reading takes in what other programs have written
};

} // namespace lexiform::qt
