#include "platform/qt/shell/Shell.h"

#include "platform/qt/shell/QtBundle.h"
#include "platform/qt/sidewindows/sideScenes.h"
#include "tests/platform/qt/shell/support/HttpsServer.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace lexiform::qt {
namespace {

constexpr int longest = 20'000;

/// In the place of the user's browser.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    Q_INVOKABLE void open(const QUrl& address) { opened.append(address.toString()); }

    QStringList opened;
};

/// Presses one button of each message box that comes up, and keeps what the boxes said.
class BoxAnswerer {
public:
    explicit BoxAnswerer(const QString& button) {
        constexpr int interval = 20;
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, button] { answer(button); });
        timer_.start(interval);
    }

    QStringList texts;

private:
    void answer(const QString& wanted) {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        texts.append(box->text());
        if (wanted == "close") return void(box->close());
        for (QAbstractButton* button : box->buttons())
            if (button->text() == wanted) return button->click();
        ADD_FAILURE() << "no such button";
    }

    QTimer timer_;
};

/// The shell of the program with its side windows and everything else that it makes itself. The maker's site
/// is on this machine.
class ShellOnDesktop : public testing::Test {
protected:
    ShellOnDesktop() {
        const WindowServices services{desktop.theme, desktop.store, desktop.windows, desktop.analysis};
        desktop.storyboard->addScene(std::string(colourSceneIdentifier),
                                     [=] { return makeColourScene(services); });
        desktop.storyboard->addScene(std::string(paletteSceneIdentifier), [this, services] {
            return makePaletteScene(desktop.defaults, services);
        });
        desktop.storyboard->addScene(std::string(helpSceneIdentifier),
                                     [this, services] { return makeHelpScene(bundle, services); });
    }

    void launchAgainst(const HttpAnswer& answer) {
        server.answers["/versions.plist"] = answer;
        shell.delegate().applicationDidFinishLaunching({});
    }

    DesktopUnderTest desktop;
    QObject owner;
    ApplicationActions actions = makeApplicationActions(&owner);
    std::shared_ptr<Bundle> bundle = std::make_shared<QtBundle>("1.0.0", desktop.folder());
    Browser browser;
    TestCertificate certificate{"IP:127.0.0.1"};
    TrustedAuthority trusted{certificate.certificate()};
    HttpsServer server{certificate};
    Shell shell{{desktop.defaults,
                 bundle,
                 desktop.storyboard,
                 {server.address("/versions.plist"), "https://maker.example/get/",
                  "https://maker.example/updates", "https://maker.example/support"}},
                actions};
};

const HttpAnswer newerVersion{
    .body = R"(({ AppName = Lexiform; Version = "99.0"; URL = "https://maker.example/get/new.tar"; }))"};

TEST_F(ShellOnDesktop, offersAnUpdateInABoxAndOpensTheDownloadForItsSecondButton) {
    const BoxAnswerer user("Download");
    launchAgainst(newerVersion);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !browser.opened.empty(); }, longest));
    EXPECT_EQ(user.texts, QStringList("An update to this app to version 99.0 is available."));
    EXPECT_EQ(browser.opened, QStringList("https://maker.example/get/new.tar"));
    EXPECT_TRUE(actions.updateState->isChecked());
    EXPECT_EQ(actions.updateState->text(), "Checked for update");
}

TEST_F(ShellOnDesktop, opensNothingForTheFirstButtonOrAClosedBox) {
    for (const char* way : {"Ignore", "close"}) {
        desktop.defaults->doubles.clear();
        const BoxAnswerer user(way);
        launchAgainst(newerVersion);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !user.texts.empty(); }, longest)) << way;
        QTest::qWait(0);
        EXPECT_EQ(user.texts.size(), 1) << way;
        EXPECT_EQ(browser.opened, QStringList()) << way;
    }
}

TEST_F(ShellOnDesktop, doesNotAskAgainWhenItHasAskedJustBefore) {
    const BoxAnswerer user("Ignore");
    launchAgainst(newerVersion);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !user.texts.empty(); }, longest));
    const double asked = desktop.defaults->doubleForKey("dateLastUpdateCheck");
    EXPECT_GT(asked, 0);
    launchAgainst(newerVersion);
    EXPECT_EQ(desktop.defaults->doubleForKey("dateLastUpdateCheck"), asked);
}

TEST_F(ShellOnDesktop, opensAnotherWindowForACommandThatIsChosenAgain) {
    for (QAction* command : {actions.openColours, actions.openPalette, actions.openHelp}) {
        command->trigger();
        command->trigger();
    }
    EXPECT_EQ(desktop.windows.windows().size(), 6);
    EXPECT_EQ(shell.delegate().myColours.size(), 2U);
    EXPECT_EQ(shell.delegate().myPalettes.size(), 2U);
    EXPECT_EQ(shell.delegate().myHelpWindow.size(), 2U);
}

TEST_F(ShellOnDesktop, keepsASideWindowThatIsClosed) {
    actions.openColours->trigger();
    const QPointer<QWidget> window = desktop.windows.windows().value(0);
    ASSERT_TRUE(window);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(window);
    EXPECT_FALSE(window->isVisible());
    ASSERT_EQ(shell.delegate().myColours.size(), 1U);
    shell.delegate().myColours.front()->showWindow(nullptr);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ShellOnDesktop, opensTheMakersPages) {
    actions.openUpdates->trigger();
    actions.openSupport->trigger();
    EXPECT_EQ(browser.opened,
              QStringList({"https://maker.example/updates", "https://maker.example/support"}));
}

TEST(ShellAtTheEnd, letsGoOfACheckThatIsNotAnswered) {
    const TestCertificate certificate("IP:127.0.0.1");
    const TrustedAuthority trusted(certificate.certificate());
    HttpsServer server(certificate);
    constexpr int late = 60'000;
    server.answers["/versions.plist"] = {.delayInMilliseconds = late};
    const DesktopUnderTest desktop;
    QObject owner;
    const auto defaults = std::make_shared<PlainUserDefaults>();
    {
        Shell shell({defaults,
                     std::make_shared<QtBundle>("1.0.0", QString()),
                     desktop.storyboard,
                     {server.address("/versions.plist"), "https://maker.example/get/", {}, {}}},
                    makeApplicationActions(&owner));
        shell.delegate().applicationDidFinishLaunching({});
        EXPECT_TRUE(QTest::qWaitFor([&] { return !server.requests.empty(); }, longest));
    }
    // The delegate and the session held it too.
    EXPECT_EQ(defaults.use_count(), 1);
}

} // namespace
} // namespace lexiform::qt

#include "ShellTest.moc"
