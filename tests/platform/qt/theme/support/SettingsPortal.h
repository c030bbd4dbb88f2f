#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryFile>

namespace lexiform::qt {

/// A message bus of the test's own, which starts none of the machine's services.
class PrivateBus {
public:
    PrivateBus() {
        if (configuration_.open()) {
            configuration_.write(
                R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
                "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
                <busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><policy context="default">
                <allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>)");
            configuration_.flush();
        }
        daemon_.start("dbus-daemon",
                      {"--config-file=" + configuration_.fileName(), "--print-address", "--nofork"});
        if (daemon_.waitForReadyRead()) address_ = QString::fromUtf8(daemon_.readLine().trimmed());
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] QDBusConnection connectAs(const QString& name) const {
        return QDBusConnection::connectToBus(address_, name);
    }

private:
    QTemporaryFile configuration_;
    QProcess daemon_;
    QString address_;
};

/// A desktop's portal for settings with one setting: which colour scheme it prefers.
class SettingsPortal : public QDBusVirtualObject {
public:
    static constexpr auto path = "/org/freedesktop/portal/desktop";

    SettingsPortal(QDBusConnection bus, uint scheme) : bus_(std::move(bus)), scheme_(scheme) {
        bus_.registerVirtualObject(path, this);
        bus_.registerService("org.freedesktop.portal.Desktop");
    }

    void change(uint scheme) {
        scheme_ = scheme;
        tell("org.freedesktop.appearance", "color-scheme", scheme);
    }

    void tell(const QString& group, const QString& key, uint value) {
        bus_.send(QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged")
                  << group << key << QVariant::fromValue(QDBusVariant(value)));
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked = message.member() + u'(' + message.arguments().value(0).toString() + u' ' +
                message.arguments().value(1).toString() + u')';
        // As portals do it: in a variant of a variant.
        const QVariant inner = QVariant::fromValue(QDBusVariant(scheme_));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }

    QString asked;

private:
    QDBusConnection bus_;
    uint scheme_;
};

} // namespace lexiform::qt
