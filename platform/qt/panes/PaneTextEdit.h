#pragma once

#include "base/AttributedText.h"
#include "platform/qt/panes/LineEnd.h"

#include <QMargins>
#include <QPlainTextEdit>

#include <string>
#include <string_view>

namespace lexiform::qt {

class PaneDocumentLayout;

/// Shows a text of any length and gives back exactly the text that it was given.
///
/// A pane is read-only until a subclass says otherwise; its text can be selected by mouse and keyboard.
/// The background is transparent: the frame around the pane paints it.
class PaneTextEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    /// What a pane keeps free around its text, in pixels inside the frame.
    static constexpr QMargins textMargins{22, 4, 20, 22};

    explicit PaneTextEdit(QWidget* parent = nullptr);

    /// The text as UTF-8, every character and line end as it was given or typed.
    [[nodiscard]] std::string text() const;
    /// Puts `text` in the place of all, without its colours, and scrolls to the top. The history of
    /// edits is forgotten and the document counts as unmodified.
    virtual void replaceText(const AttributedText& text);
    /// Adds `text` at the end with nothing put between; the view stays where it is.
    virtual void appendText(const AttributedText& text);

    /// What a new line typed into this text is written as: the line end that most lines of the
    /// replaced text have.
    [[nodiscard]] LineEnd ownLineEnd() const { return ownLineEnd_; }

protected:
    PaneTextEdit(const QMargins& margins, QWidget* parent);

    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

    [[nodiscard]] PaneDocumentLayout& paneLayout() const;
    /// The selection's characters with their own line ends.
    [[nodiscard]] QString exactSelection() const;

private:
    void paintCaret();
    void takeSpacingFromFont();
    [[nodiscard]] QPointF onNearestLine(QPointF point) const;

    LineEnd ownLineEnd_ = LineEnd::lf;
};

} // namespace lexiform::qt
