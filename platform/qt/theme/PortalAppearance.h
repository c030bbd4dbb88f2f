#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <optional>

namespace lexiform::qt {

/// The appearance that a desktop prefers, as its portal for settings tells: at once when the program starts,
/// and again whenever a person chooses another.
class PortalAppearance : public QObject {
    Q_OBJECT

public:
    /// Asks over `bus`, without waiting for the answer. Where there is no bus, no portal or no such setting,
    /// there is never a preference.
    explicit PortalAppearance(const QDBusConnection& bus);

    /// Nothing while the desktop prefers neither, or has not answered.
    [[nodiscard]] std::optional<Appearance> preferred() const { return preferred_; }

signals:
    void changed(std::optional<Appearance> preferred);

private slots:
    // QtDBus finds it by its name.
    void takeChange(const QDBusMessage& change);

private:
    void ask(const QDBusConnection& bus);
    void take(const QVariant& value);

    std::optional<Appearance> preferred_;
};

} // namespace lexiform::qt
