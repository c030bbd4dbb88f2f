#pragma once

#include "platform/qt/panes/PaneTextEdit.h"
#include "ports/TextPane.h"

#include <QPointer>

namespace lexiform::qt {

/// Where a pane is scrolled to when its text has been replaced.
enum class AfterReplacing { goesToTop, keepsPlace };

/// A pane of the window as the core sees it. Once the widget is gone it holds no text and has no storage.
class QtTextPane : public TextPane, public TextStorage {
public:
    explicit QtTextPane(PaneTextEdit* edit, AfterReplacing after = AfterReplacing::goesToTop)
        : edit_(edit), after_(after) {}

    [[nodiscard]] std::string plainText() const override;
    [[nodiscard]] TextStorage* textStorage() override;

    void replace(const AttributedText& text) override;
    void append(const AttributedText& text) override;
    [[nodiscard]] AttributedText attributedText() const override;

private:
    QPointer<PaneTextEdit> edit_;
    AfterReplacing after_;
};

} // namespace lexiform::qt
