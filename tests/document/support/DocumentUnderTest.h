#pragma once

#include "document/Document.h"
#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace lexiform {

/// Shows what it is given.
class PlainWindowController : public WindowController {
public:
    explicit PlainWindowController(std::shared_ptr<ViewControllerBase> content)
        : content_(std::move(content)) {}

    [[nodiscard]] std::shared_ptr<ViewControllerBase> contentViewController() const override {
        return content_;
    }
    void showWindow(const ActionSender* /*sender*/) override {}

private:
    std::shared_ptr<ViewControllerBase> content_;
};

/// Gives the scenes that a test put into it.
class PlainStoryboard : public Storyboard {
public:
    [[nodiscard]] std::shared_ptr<SceneController>
    instantiateController(std::string_view identifier) override {
        const auto scene = scenes.find(identifier);
        return scene == scenes.end() ? nullptr : scene->second;
    }

    std::map<std::string, std::shared_ptr<SceneController>, std::less<>> scenes;
};

/// A document whose scene is a window with an input pane that already holds a text.
struct DocumentUnderTest {
    DocumentUnderTest() {
        storyboard->scenes["Document Window Controller"] =
            std::make_shared<PlainWindowController>(window.controller);
        document.fileURL = "/texts/harbour.txt";
    }

    void read(std::string bytes, std::string type = "public.plain-text") {
        ASSERT_TRUE(document.readFromData(std::move(bytes), std::move(type)).succeeded());
    }

    WindowUnderTest window{"as the window made it"};
    std::shared_ptr<PlainStoryboard> storyboard = std::make_shared<PlainStoryboard>();
    Document document{storyboard};
};

} // namespace lexiform
