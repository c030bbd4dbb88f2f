#pragma once

#include "app/AppDelegate.h"
#include "platform/qt/shell/QtApplication.h"
#include "platform/qt/shell/QtMainQueue.h"
#include "platform/qt/shell/QtUrlSession.h"
#include "platform/qt/windows/ApplicationActions.h"
#include "tests/platform/qt/shell/support/HttpsServer.h"
#include "tests/support/ShellDoubles.h"

#include <QTest>
#include <QThread>

#include <atomic>
#include <utility>

namespace lexiform::qt {

/// The session of the application, which tells when what an answer led to has been done on the main thread.
class WatchedSession : public UrlSession {
public:
    explicit WatchedSession(std::shared_ptr<MainQueue> mainQueue) : mainQueue_(std::move(mainQueue)) {}

    std::unique_ptr<DataTask> dataTask(const WebAddress& address, Completion completion) override {
        return session_.dataTask(
            address, [this, completion = std::move(completion)](auto body, auto response, auto error) {
                isAnsweredOnMainThread = QThread::currentThread() == qApp->thread();
                completion(std::move(body), std::move(response), std::move(error));
                mainQueue_->async([this] { isDone = true; });
            });
    }
    void stop() { session_.stop(); }

    std::atomic<bool> isAnsweredOnMainThread = true;
    bool isDone = false;

private:
    QtUrlSession session_;
    std::shared_ptr<MainQueue> mainQueue_;
};

/// The check for updates with the session, the main queue and the Help menu of the desktop, against a server
/// whose authority is trusted. Alerts and opened pages are noted.
class UpdateCheckUnderTest {
public:
    UpdateCheckUnderTest() = default;
    ~UpdateCheckUnderTest() {
        session->stop();
        mainQueue->stop();
    }
    UpdateCheckUnderTest(const UpdateCheckUnderTest&) = delete;
    UpdateCheckUnderTest& operator=(const UpdateCheckUnderTest&) = delete;

    /// Makes the check and waits for its end; false if none comes.
    [[nodiscard]] bool check() {
        constexpr int longest = 20'000;
        delegate->checkForUpdate();
        return QTest::qWaitFor([this] { return session->isDone; }, longest);
    }
    [[nodiscard]] bool checkAgainst(const HttpAnswer& answer) {
        server.answers["/versions.plist"] = answer;
        return check();
    }

    QObject owner;
    ApplicationActions actions = makeApplicationActions(&owner);
    TestCertificate certificate{"IP:127.0.0.1"};
    TrustedAuthority trusted{certificate.certificate()};
    HttpsServer server{certificate};
    std::vector<ShownAlert> alerts;
    Alert::Response pressed = Alert::Response::firstButton;
    std::shared_ptr<PlainWorkspace> workspace = std::make_shared<PlainWorkspace>();
    std::shared_ptr<QtMainQueue> mainQueue = std::make_shared<QtMainQueue>();
    std::shared_ptr<WatchedSession> session = std::make_shared<WatchedSession>(mainQueue);
    std::shared_ptr<AppDelegate> delegate = std::make_shared<AppDelegate>(
        AppServices{.defaults = std::make_shared<PlainUserDefaults>(),
                    .clock = std::make_shared<PlainClock>(),
                    .bundle = std::make_shared<PlainBundle>(),
                    .session = session,
                    .mainQueue = mainQueue,
                    .makeAlert = [this] { return std::make_shared<PlainAlert>(alerts, pressed); },
                    .application = std::make_shared<QtApplication>(actions.inHelp()),
                    .workspace = workspace,
                    .storyboard = std::make_shared<SideStoryboard>(),
                    .addresses = {server.address("/versions.plist"), "https://maker.example/get/",
                                  "https://maker.example/updates", "https://maker.example/support"}});
};

} // namespace lexiform::qt
