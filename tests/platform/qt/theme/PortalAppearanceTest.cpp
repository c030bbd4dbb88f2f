#include "platform/qt/theme/PortalAppearance.h"

#include "tests/platform/qt/theme/support/SettingsPortal.h"

#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace lexiform::qt {
namespace {

/// A program on a bus of its own, where a portal may be.
class Portal : public testing::Test {
protected:
    Portal() : program(bus.connectAs("program")) {}
    ~Portal() override {
        QDBusConnection::disconnectFromBus("program");
        QDBusConnection::disconnectFromBus("portal");
    }

    static bool comesTo(const PortalAppearance& portal, std::optional<Appearance> wanted) {
        return QTest::qWaitFor([&] { return portal.preferred() == wanted; });
    }

    PrivateBus bus;
    QDBusConnection program;
};

TEST_F(Portal, tellsThatTheDesktopPrefersDark) {
    const SettingsPortal desktop(bus.connectAs("portal"), 1);
    const PortalAppearance portal(program);
    EXPECT_TRUE(comesTo(portal, Appearance::dark));
    EXPECT_EQ(desktop.asked, "Read(org.freedesktop.appearance color-scheme)");
}

TEST_F(Portal, tellsThatTheDesktopPrefersLight) {
    const SettingsPortal desktop(bus.connectAs("portal"), 2);
    const PortalAppearance portal(program);
    EXPECT_TRUE(comesTo(portal, Appearance::light));
}

TEST_F(Portal, tellsOfEachChangeOnce) {
    SettingsPortal desktop(bus.connectAs("portal"), 2);
    const PortalAppearance portal(program);
    ASSERT_TRUE(comesTo(portal, Appearance::light));
    std::vector<std::optional<Appearance>> told;
    QObject::connect(&portal, &PortalAppearance::changed, [&](auto preferred) { told.push_back(preferred); });
    for (const uint scheme : {1U, 1U, 0U, 2U})
        desktop.change(scheme);
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 3; }));
    EXPECT_EQ(told,
              (std::vector<std::optional<Appearance>>{Appearance::dark, std::nullopt, Appearance::light}));
}

TEST_F(Portal, passesOverOtherSettings) {
    SettingsPortal desktop(bus.connectAs("portal"), 2);
    const PortalAppearance portal(program);
    ASSERT_TRUE(comesTo(portal, Appearance::light));
    desktop.tell("org.freedesktop.appearance", "contrast", 1);
    desktop.tell("org.example.appearance", "color-scheme", 1);
    std::vector<std::optional<Appearance>> told;
    QObject::connect(&portal, &PortalAppearance::changed, [&](auto preferred) { told.push_back(preferred); });
    desktop.change(0);
    ASSERT_TRUE(comesTo(portal, std::nullopt));
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(Portal, hasNoPreferenceWithoutAPortal) {
    const PortalAppearance portal(program);
    QTest::qWait(100);
    EXPECT_EQ(portal.preferred(), std::nullopt);
}

TEST_F(Portal, hasNoPreferenceWithoutABus) {
    const PortalAppearance portal(QDBusConnection("nowhere"));
    EXPECT_EQ(portal.preferred(), std::nullopt);
}

} // namespace
} // namespace lexiform::qt
