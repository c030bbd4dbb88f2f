#include "tests/platform/qt/shell/support/UpdateCheckUnderTest.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace lexiform::qt {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

/// A manifest of one entry for each version, all with the same address.
QByteArray offering(const QList<QByteArray>& versions,
                    const QByteArray& address = "https://maker.example/get/lexiform.tar") {
    QByteArray entries;
    for (const QByteArray& version : versions)
        entries += R"({ AppName = Lexiform; Version = ")" + version + R"("; URL = ")" + address + R"("; }, )";
    entries.chop(2);
    return '(' + entries + ')';
}

auto offers(const std::string& version) {
    return Field(&ShownAlert::message, "An update to this app to version " + version + " is available.");
}
auto tells(const std::string& details) {
    return Field(&ShownAlert::details, details);
}

/// The running version is 1.0.0.
class UpdateCheck : public testing::Test {
protected:
    UpdateCheckUnderTest desktop;
    const QAction& item = *desktop.actions.updateState;

    void expectItemMarked() const {
        EXPECT_TRUE(item.isChecked());
        EXPECT_EQ(item.text(), "Checked for update");
    }
    /// The check ends without an alert and leaves the menu as it was.
    void expectSilence() const {
        EXPECT_THAT(desktop.alerts, IsEmpty());
        EXPECT_FALSE(item.isChecked());
        EXPECT_EQ(item.text(), "Update not checked");
    }
};

TEST_F(UpdateCheck, asksOnceWithAPlainRequestAndIsAnsweredInTheBackground) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"1.0.0"})}));
    ASSERT_EQ(desktop.server.requests.size(), 1);
    EXPECT_TRUE(desktop.server.requests.front().startsWith("GET /versions.plist HTTP/1.1\r\n"));
    EXPECT_FALSE(desktop.session->isAnsweredOnMainThread);
}

TEST_F(UpdateCheck, offersANewerVersion) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"})}));
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("99.0")));
    EXPECT_THAT(desktop.workspace->opened, IsEmpty());
    expectItemMarked();
}

TEST_F(UpdateCheck, opensTheDownloadThatTheUserAsksFor) {
    desktop.pressed = Alert::Response::secondButton;
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"})}));
    EXPECT_THAT(desktop.workspace->opened, ElementsAre("https://maker.example/get/lexiform.tar"));
}

TEST_F(UpdateCheck, offersAnOlderVersionAndOneOfFewerDigitsToo) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"0.9", "1.0"})}));
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("0.9"), offers("1.0")));
}

TEST_F(UpdateCheck, marksTheItemAloneForTheRunningVersion) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"1.0.0"})}));
    EXPECT_THAT(desktop.alerts, IsEmpty());
    expectItemMarked();
}

TEST_F(UpdateCheck, offersEachOfTwoEntries) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"98.0", "99.0"})}));
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("98.0"), offers("99.0")));
    expectItemMarked();
}

TEST_F(UpdateCheck, marksTheItemAloneForADownloadElsewhere) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"}, "https://other.example/lexiform.tar")}));
    EXPECT_THAT(desktop.alerts, IsEmpty());
    expectItemMarked();
}

TEST_F(UpdateCheck, tellsOfAnEmptyArray) {
    ASSERT_TRUE(desktop.checkAgainst(
        {.body = "<plist version='1.0'><array/></plist>", .headers = "Content-Type: text/xml\r\n"}));
    EXPECT_THAT(desktop.alerts, ElementsAre(tells("Update Property List has no entries.")));
    EXPECT_FALSE(item.isChecked());
}

TEST_F(UpdateCheck, tellsOfAPageSentAsText) {
    ASSERT_TRUE(desktop.checkAgainst({.body = "<!DOCTYPE html><html><body><p>Gone</body></html>"}));
    EXPECT_THAT(desktop.alerts, ElementsAre(tells("Error in update Property List.")));
}

TEST_F(UpdateCheck, tellsOfAnEmptyBody) {
    ASSERT_TRUE(desktop.checkAgainst({.body = ""}));
    EXPECT_THAT(desktop.alerts, ElementsAre(tells("Error in update Property List.")));
}

TEST_F(UpdateCheck, takesATypeWithoutItsParametersAndInAnyCase) {
    ASSERT_TRUE(desktop.checkAgainst(
        {.body = offering({"99.0"}), .headers = "content-type: Text/Plain; charset=utf-8\r\n"}));
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("99.0")));
}

TEST_F(UpdateCheck, endsSilentlyForTheTypeOfPropertyLists) {
    ASSERT_TRUE(desktop.checkAgainst(
        {.body = offering({"99.0"}), .headers = "Content-Type: application/x-plist\r\n"}));
    expectSilence();
}

TEST_F(UpdateCheck, endsSilentlyWithoutAType) {
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"}), .headers = ""}));
    expectSilence();
}

TEST_F(UpdateCheck, endsSilentlyForAStatusThatIsNoSuccess) {
    for (const char* status : {"304 Not Modified", "404 Not Found", "500 Internal Server Error"}) {
        desktop.session->isDone = false;
        const QByteArray body = qstrncmp(status, "304", 3) == 0 ? QByteArray() : offering({"99.0"});
        ASSERT_TRUE(desktop.checkAgainst({.status = status, .body = body})) << status;
        expectSilence();
    }
    EXPECT_EQ(desktop.server.requests.size(), 3);
}

TEST_F(UpdateCheck, followsARedirect) {
    desktop.server.answers["/moved.plist"] = {.body = offering({"99.0"})};
    ASSERT_TRUE(desktop.checkAgainst({.status = "302 Found", .headers = "Location: /moved.plist\r\n"}));
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("99.0")));
}

TEST_F(UpdateCheck, followsNoRedirectToAnAddressWithoutEncryption) {
    ASSERT_TRUE(desktop.checkAgainst(
        {.status = "302 Found",
         .headers = "Content-Type: text/plain\r\nLocation: http://127.0.0.1/versions.plist\r\n"}));
    expectSilence();
}

TEST_F(UpdateCheck, endsSilentlyForAnAnswerThatIsTooLong) {
    const QByteArray filling(QtUrlSession::mostBytes, ' ');
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"}) + filling}));
    expectSilence();
}

TEST_F(UpdateCheck, leavesTheEventLoopFreeWhileAnAnswerIsSlow) {
    constexpr int delay = 1000;
    constexpr int interval = 20;
    qint64 pause = 0;
    QElapsedTimer sinceTick;
    sinceTick.start();
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [&] { pause = std::max(pause, sinceTick.restart()); });
    ticks.start(interval);
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"}), .delayInMilliseconds = delay}));
    EXPECT_LT(pause, delay);
    EXPECT_THAT(desktop.alerts, ElementsAre(offers("99.0")));
}

TEST_F(UpdateCheck, endsSilentlyWhenTheConnectionIsRefused) {
    desktop.server.close();
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"})}));
    expectSilence();
}

TEST_F(UpdateCheck, endsSilentlyForACertificateOfNoTrustedAuthority) {
    desktop.server.serveAs(TestCertificate("IP:127.0.0.1"));
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"})}));
    expectSilence();
    EXPECT_THAT(desktop.server.requests, IsEmpty());
}

TEST_F(UpdateCheck, endsSilentlyForTheCertificateOfAnotherHost) {
    const TestCertificate another("DNS:other.example");
    const TrustedAuthority trusted(another.certificate());
    desktop.server.serveAs(another);
    ASSERT_TRUE(desktop.checkAgainst({.body = offering({"99.0"})}));
    expectSilence();
    EXPECT_THAT(desktop.server.requests, IsEmpty());
}

} // namespace
} // namespace lexiform::qt
