#pragma once

#include "app/AppDelegate.h"
#include "tests/support/PlainDoubles.h"

#include <cstdio>
#include <deque>
#include <utility>

namespace lexiform {

/// A clock that stands, or gives a list of times one after the other and stays at the last.
class PlainClock : public Clock {
public:
    [[nodiscard]] double secondsSinceReferenceDate() const override {
        const double now = times.front();
        if (times.size() > 1) times.pop_front();
        return now;
    }

    mutable std::deque<double> times = {800'000'000};
};

class PlainBundle : public Bundle {
public:
    [[nodiscard]] std::optional<InfoDictionary> infoDictionary() const override { return information; }
    [[nodiscard]] std::optional<std::string> urlForResource(std::string_view name,
                                                            std::string_view extension) const override {
        const auto found = resources.find(std::string(name) + '.' + std::string(extension));
        return found == resources.end() ? std::nullopt : std::optional(found->second);
    }

    std::optional<InfoDictionary> information =
        InfoDictionary{{"CFBundleShortVersionString", std::string("1.0.0")}};
    std::map<std::string, std::string, std::less<>> resources;
};

/// Keeps what it is asked for; a test answers.
class PlainSession : public UrlSession {
public:
    std::unique_ptr<DataTask> dataTask(const WebAddress& address, Completion newCompletion) override {
        addresses.push_back(address.string());
        completion = std::move(newCompletion);
        return std::make_unique<Task>(started);
    }

    std::vector<std::string> addresses;
    int started = 0;
    Completion completion;

private:
    class Task : public DataTask {
    public:
        explicit Task(int& started) : started_(started) {}
        void resume() override { ++started_; }

    private:
        int& started_;
    };
};

/// Keeps its work until a test runs it.
class PlainMainQueue : public MainQueue {
public:
    void async(std::function<void()> newWork) override { work.push_back(std::move(newWork)); }
    void run() {
        for (const auto& each : std::exchange(work, {}))
            each();
    }

    std::vector<std::function<void()>> work;
};

/// What an alert was when it was shown.
struct ShownAlert {
    std::string message;
    std::string details;
    Alert::Style style = Alert::Style::warning;
    std::vector<std::string> buttons;

    bool operator==(const ShownAlert&) const = default;
};

/// Notes itself in a list, says so on standard error, and answers what it was told.
class PlainAlert : public Alert {
public:
    PlainAlert(std::vector<ShownAlert>& shown, Response answer) : shown_(shown), answer_(answer) {}

    void setMessageText(const std::string& text) override { own_.message = text; }
    void setInformativeText(const std::string& text) override { own_.details = text; }
    void setAlertStyle(Style style) override { own_.style = style; }
    void addButton(const std::string& title) override { own_.buttons.push_back(title); }
    Response runModal() override {
        std::fputs("alert;", stderr);
        shown_.push_back(own_);
        return answer_;
    }

private:
    std::vector<ShownAlert>& shown_;
    Response answer_;
    ShownAlert own_;
};

/// A Help menu of one item, which can be told to be missing; its item remembers every title.
class PlainApplication : public Application, public Menu, public MenuItem {
public:
    [[nodiscard]] Menu* helpMenu() override { return hasMenu ? this : nullptr; }
    [[nodiscard]] MenuItem* itemWithTitle(std::string_view title) override {
        return titles.back() == title ? this : nullptr;
    }
    void setState(State newState) override { state = newState; }
    void setTitle(const std::string& title) override { titles.push_back(title); }

    bool hasMenu = true;
    State state = State::off;
    std::vector<std::string> titles = {"Update not checked"};
};

class PlainWorkspace : public Workspace {
public:
    bool open(const WebAddress& address) override {
        opened.push_back(address.string());
        return succeeds;
    }

    std::vector<std::string> opened;
    bool succeeds = true;
};

/// A window controller that remembers on whose behalf it was shown.
class ShownWindowController : public WindowController {
public:
    [[nodiscard]] std::shared_ptr<ViewControllerBase> contentViewController() const override {
        return nullptr;
    }
    void showWindow(const ActionSender* sender) override { senders.push_back(sender); }

    std::vector<const ActionSender*> senders;
};

/// Gives a new window for the identifiers of the side windows, and for "No Window" a scene that is none.
class SideStoryboard : public Storyboard {
public:
    std::shared_ptr<SceneController> instantiateController(std::string_view identifier) override {
        asked.emplace_back(identifier);
        if (identifier == "No Window") return std::make_shared<SceneController>();
        if (identifier.find("Window Controller") == std::string_view::npos) return nullptr;
        return std::make_shared<ShownWindowController>();
    }

    std::vector<std::string> asked;
};

} // namespace lexiform
