#pragma once

#include "base/AttributedText.h"
#include "ports/PopUpButton.h"
#include "ports/ProgressIndicator.h"
#include "ports/TextField.h"
#include "ports/TextPane.h"
#include "ports/View.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lexiform {

/// A text pane in memory. It counts how often its text was replaced, and can be told to have no
/// text storage.
class PlainTextPane : public TextPane, public TextStorage {
public:
    PlainTextPane() = default;
    explicit PlainTextPane(std::string text) : content(std::move(text), Colour::text) {}

    [[nodiscard]] std::string plainText() const override { return content.string(); }
    [[nodiscard]] TextStorage* textStorage() override { return hasStorage ? this : nullptr; }

    void replace(const AttributedText& text) override {
        content = text;
        ++replacements;
    }
    void append(const AttributedText& text) override { content.append(text); }

    AttributedText content;
    int replacements = 0;
    bool hasStorage = true;
};

class PlainTextField : public TextField {
public:
    void setStringValue(const std::string& newValue) override { value = newValue; }

    std::optional<std::string> value;
};

class PlainPopUpButton : public PopUpButton {
public:
    void removeAllItems() override {
        items.clear();
        selected = -1;
    }
    void addItems(std::span<const std::string_view> titles) override {
        items.insert(items.end(), titles.begin(), titles.end());
    }
    void selectItem(std::size_t index) override { selected = static_cast<int>(index); }
    void setEnabled(bool isEnabled) override { enabled = isEnabled; }

    std::vector<std::string> items;
    int selected = -1;
    bool enabled = true;
};

class PlainProgressIndicator : public ProgressIndicator {
public:
    void setHidden(bool isHidden) override { hidden = isHidden; }

    bool hidden = false;
};

class PlainWindow : public Window {
public:
    void setDelegate(std::weak_ptr<WindowDelegate> newDelegate) override { delegate = newDelegate; }

    std::weak_ptr<WindowDelegate> delegate;
};

/// A view that is in a window unless told otherwise.
class PlainView : public View {
public:
    [[nodiscard]] Window* window() override { return inWindow ? &ownWindow : nullptr; }

    PlainWindow ownWindow;
    bool inWindow = true;
};

} // namespace lexiform
