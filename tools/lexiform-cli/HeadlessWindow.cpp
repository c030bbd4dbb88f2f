#include "tools/lexiform-cli/HeadlessWindow.h"

#include <utility>

namespace lexiform::cli {

namespace {

class MemoryPane : public TextPane, public TextStorage {
public:
    [[nodiscard]] std::string plainText() const override { return text_; }
    [[nodiscard]] TextStorage* textStorage() override { return this; }
    void replace(const AttributedText& text) override { text_ = text.string(); }
    void append(const AttributedText& text) override { text_ += text.string(); }
    [[nodiscard]] AttributedText attributedText() const override { return {text_, Colour::text}; }

private:
    std::string text_;
};

/// A pane that nobody reads: without a text storage it receives nothing.
class UnreadPane : public TextPane {
public:
    [[nodiscard]] std::string plainText() const override { return ""; }
    [[nodiscard]] TextStorage* textStorage() override { return nullptr; }
};

class UnreadField : public TextField {
public:
    void setStringValue(const std::string& /*value*/) override {}
};

class UnreadPopUp : public PopUpButton {
public:
    void removeAllItems() override {}
    void addItems(std::span<const std::string_view> /*titles*/) override {}
    void selectItem(std::size_t /*index*/) override {}
    [[nodiscard]] int indexOfSelectedItem() const override { return -1; }
    void setEnabled(bool /*enabled*/) override {}
};

/// The command line leaves a person's preferences alone.
class ForgetfulDefaults : public UserDefaults {
public:
    [[nodiscard]] std::optional<std::string> stringForKey(std::string_view /*key*/) const override {
        return std::nullopt;
    }
    void setString(std::string_view /*value*/, std::string_view /*key*/) override {}
    [[nodiscard]] bool boolForKey(std::string_view /*key*/) const override { return false; }
    void setBool(bool /*value*/, std::string_view /*key*/) override {}
    [[nodiscard]] double doubleForKey(std::string_view /*key*/) const override { return 0; }
    void setDouble(double /*value*/, std::string_view /*key*/) override {}
};

class NamelessWindow : public Window, public View {
public:
    void setDelegate(std::weak_ptr<WindowDelegate> /*delegate*/) override {}
    [[nodiscard]] std::string title() const override { return ""; }
    void setTitle(const std::string& /*title*/) override {}
    [[nodiscard]] Window* window() override { return this; }
};

} // namespace

HeadlessWindow::HeadlessWindow(TaggerFactory makeTagger)
    : controller_(std::make_shared<ViewController>(
          std::move(makeTagger), AnalysisServices{std::make_shared<ForgetfulDefaults>(), nullptr, nullptr})),
      view_(std::make_shared<NamelessWindow>()), popup_(std::make_shared<UnreadPopUp>()) {
    controller_->intextTextbox = std::make_shared<MemoryPane>();
    controller_->outtextTextbox = std::make_shared<UnreadPane>();
    controller_->concordTextbox = std::make_shared<MemoryPane>();
    controller_->colourKeyText = std::make_shared<UnreadField>();
    controller_->typesPopup = popup_;
    controller_->view = view_;
}

void HeadlessWindow::setText(std::string_view text) {
    controller_->setInputText(text);
}

std::string HeadlessWindow::concordance() const {
    return controller_->concordTextbox->plainText();
}

} // namespace lexiform::cli
