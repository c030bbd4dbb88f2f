#pragma once

#include "tests/support/ShellDoubles.h"

namespace lexiform {

/// The application's delegate on a desktop of doubles. Its maker is at maker.example.
class ShellUnderTest {
public:
    static constexpr double now = 800'000'000;

    ShellUnderTest() = default;
    // What was not answered keeps the delegate, which keeps those who keep the question.
    ~ShellUnderTest() {
        session->completion = nullptr;
        mainQueue->work.clear();
    }
    ShellUnderTest(const ShellUnderTest&) = delete;
    ShellUnderTest& operator=(const ShellUnderTest&) = delete;

    /// One launch: the sequence with whatever the defaults hold.
    void launch() { delegate->applicationDidFinishLaunching({}); }

    /// The request's answer, on a session's thread as it were, and what the main thread then does.
    void answer(std::optional<std::string> body, std::optional<UrlResponse> response,
                std::optional<UrlError> error = std::nullopt) {
        session->completion(std::move(body), std::move(response), std::move(error));
        mainQueue->run();
    }
    void answerWith(const std::string& manifest) { answer(manifest, UrlResponse{200, "text/xml"}); }

    std::shared_ptr<PlainUserDefaults> defaults = std::make_shared<PlainUserDefaults>();
    std::shared_ptr<PlainClock> clock = std::make_shared<PlainClock>();
    std::shared_ptr<PlainBundle> bundle = std::make_shared<PlainBundle>();
    std::shared_ptr<PlainSession> session = std::make_shared<PlainSession>();
    std::shared_ptr<PlainMainQueue> mainQueue = std::make_shared<PlainMainQueue>();
    std::shared_ptr<PlainApplication> application = std::make_shared<PlainApplication>();
    std::shared_ptr<PlainWorkspace> workspace = std::make_shared<PlainWorkspace>();
    std::shared_ptr<SideStoryboard> storyboard = std::make_shared<SideStoryboard>();
    std::vector<ShownAlert> alerts;
    Alert::Response pressed = Alert::Response::firstButton;
    std::shared_ptr<AppDelegate> delegate = std::make_shared<AppDelegate>(
        AppServices{.defaults = defaults,
                    .clock = clock,
                    .bundle = bundle,
                    .session = session,
                    .mainQueue = mainQueue,
                    .makeAlert = [this] { return std::make_shared<PlainAlert>(alerts, pressed); },
                    .application = application,
                    .workspace = workspace,
                    .storyboard = storyboard,
                    .addresses = {"https://maker.example/versions.plist", "https://maker.example/get/",
                                  "https://maker.example/updates", "https://maker.example/support"}});
};

} // namespace lexiform
