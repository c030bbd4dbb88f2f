#pragma once

#include "base/AttributedText.h"
#include "ports/FileWriter.h"
#include "ports/PopUpButton.h"
#include "ports/ProgressIndicator.h"
#include "ports/SavePanel.h"
#include "ports/TextField.h"
#include "ports/TextPane.h"
#include "ports/UserDefaults.h"
#include "ports/View.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
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
    [[nodiscard]] AttributedText attributedText() const override { return content; }

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
    [[nodiscard]] int indexOfSelectedItem() const override { return selected; }
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
    [[nodiscard]] std::string title() const override { return ownTitle; }
    void setTitle(const std::string& title) override { ownTitle = title; }

    std::weak_ptr<WindowDelegate> delegate;
    std::string ownTitle = "harbour.txt";
};

/// A view that is in a window unless told otherwise.
class PlainView : public View {
public:
    [[nodiscard]] Window* window() override { return inWindow ? &ownWindow : nullptr; }

    PlainWindow ownWindow;
    bool inWindow = true;
};

class PlainUserDefaults : public UserDefaults {
public:
    [[nodiscard]] std::optional<std::string> stringForKey(std::string_view key) const override {
        const auto entry = strings.find(key);
        return entry == strings.end() ? std::nullopt : std::optional(entry->second);
    }
    void setString(std::string_view value, std::string_view key) override {
        strings.insert_or_assign(std::string(key), std::string(value));
    }
    [[nodiscard]] bool boolForKey(std::string_view key) const override {
        const auto entry = bools.find(key);
        return entry != bools.end() && entry->second;
    }
    void setBool(bool value, std::string_view key) override {
        bools.insert_or_assign(std::string(key), value);
    }
    [[nodiscard]] double doubleForKey(std::string_view key) const override {
        const auto entry = doubles.find(key);
        return entry == doubles.end() ? 0 : entry->second;
    }
    void setDouble(double value, std::string_view key) override {
        doubles.insert_or_assign(std::string(key), value);
    }

    std::map<std::string, std::string, std::less<>> strings;
    std::map<std::string, bool, std::less<>> bools;
    std::map<std::string, double, std::less<>> doubles;
};

/// A save panel that a test closes.
class PlainSavePanel : public SavePanel {
public:
    void setCanCreateDirectories(bool allowed) override { canCreateDirectories = allowed; }
    void setAllowedFileTypes(std::span<const std::string_view> extensions) override {
        allowedFileTypes.assign(extensions.begin(), extensions.end());
    }
    void setNameFieldStringValue(const std::string& value) override { name = value; }
    void begin(std::function<void(Response)> newCompletion) override {
        completion = std::move(newCompletion);
    }
    [[nodiscard]] std::optional<std::string> url() const override { return chosen; }

    /// The person chooses `path` and confirms, or cancels.
    void confirm(std::optional<std::string> path) {
        chosen = std::move(path);
        close(Response::ok);
    }
    void cancel() { close(Response::cancel); }

    bool canCreateDirectories = false;
    std::vector<std::string> allowedFileTypes;
    std::string name;
    std::function<void(Response)> completion;
    std::optional<std::string> chosen;

private:
    void close(Response response) {
        const auto answered = std::exchange(completion, nullptr);
        answered(response);
    }
};

/// Files in memory. It can be told to fail.
class PlainFileWriter : public FileWriter {
public:
    Outcome<Done, WriteFault> write(const std::string& path, std::string_view bytes) override {
        if (failure) return WriteFault{*failure};
        files.insert_or_assign(path, std::string(bytes));
        return Done{};
    }

    std::optional<std::string> failure;
    std::map<std::string, std::string> files;
};

} // namespace lexiform
