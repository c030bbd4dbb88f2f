#include "platform/qt/theme/PortalAppearance.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace lexiform::qt {

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

// A portal answers with its value in a variant within a variant, and tells of a change in one.
QVariant innermost(QVariant inner) {
    while (inner.metaType() == QMetaType::fromType<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    return inner;
}

std::optional<Appearance> appearanceOfScheme(uint scheme) {
    constexpr uint prefersDark = 1;
    constexpr uint prefersLight = 2;
    if (scheme == prefersDark) return Appearance::dark;
    if (scheme == prefersLight) return Appearance::light;
    return std::nullopt;
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection& bus) {
    if (!bus.isConnected()) return;
    QDBusConnection(bus).connect(portal, portalPath, settings, QStringLiteral("SettingChanged"), this,
                                 SLOT(takeChange(QDBusMessage)));
    ask(bus);
}

void PortalAppearance::ask(const QDBusConnection& bus) {
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
    question << appearanceGroup << schemeKey;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        if (!watcher->isError()) take(watcher->reply().arguments().value(0));
        watcher->deleteLater();
    });
}

void PortalAppearance::takeChange(const QDBusMessage& change) {
    const QVariantList setting = change.arguments();
    if (setting.value(0) == appearanceGroup && setting.value(1) == schemeKey) take(setting.value(2));
}

void PortalAppearance::take(const QVariant& value) {
    const auto preferred = appearanceOfScheme(innermost(value).toUInt());
    if (preferred == preferred_) return;
    preferred_ = preferred;
    emit changed(preferred);
}

} // namespace lexiform::qt
