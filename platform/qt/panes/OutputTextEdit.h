#pragma once

#include "platform/qt/panes/PaneTextEdit.h"

#include <QColor>

#include <optional>

namespace lexiform::qt {

/// A read-only pane that shows a text with a colour on every character. Colours follow the palette:
/// when it turns from light to dark, so do they.
class OutputTextEdit : public PaneTextEdit {
    Q_OBJECT

public:
    explicit OutputTextEdit(QWidget* parent = nullptr);

    void replaceText(const AttributedText& text) override;
    void appendText(const AttributedText& text) override;

    /// The colour in which the character at a position of the document is painted; nothing past the
    /// end and at the end of a block.
    [[nodiscard]] std::optional<QColor> paintedColourAt(int position) const;
};

} // namespace lexiform::qt
