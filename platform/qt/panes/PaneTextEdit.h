#pragma once

#include "base/AttributedText.h"
#include "platform/qt/panes/LineEnd.h"

#include <QMargins>
#include <QPlainTextEdit>

#include <string>

namespace lexiform::qt {

class PaneDocumentLayout;
struct TextBlocks;

/// Shows a text of any length and gives back exactly the text that it was given.
///
/// A pane is read-only until a subclass says otherwise; its text can be selected by mouse and keyboard.
/// The background is transparent: the frame around the pane paints it.
///
/// `setPlainText`, `toPlainText` and their like change line ends and no-break spaces: nobody calls them.
class PaneTextEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    /// What a pane keeps free around its text, in pixels inside the frame.
    static constexpr QMargins textMargins{22, 4, 20, 22};

    explicit PaneTextEdit(QWidget* parent = nullptr) : PaneTextEdit(textMargins, parent) {}

    /// The text as UTF-8, every character and line end as it was given or typed.
    [[nodiscard]] std::string text() const;
    /// The same with the colours in which it is painted; all in the text colour but for subclasses.
    [[nodiscard]] virtual AttributedText attributedText() const;
    /// Puts `text` in the place of all and scrolls to the top. The history of edits is forgotten and
    /// the document counts as unmodified. Colours are for subclasses: this class paints none.
    void replaceText(const AttributedText& text);
    /// Adds `text` at the end with nothing put between; the view stays where it is.
    void appendText(const AttributedText& text);

    /// What a new line typed into this text is written as: the line end that most lines of the
    /// replaced text have.
    [[nodiscard]] LineEnd ownLineEnd() const { return ownLineEnd_; }

    /// How many points the text is larger than usual; what is asked for is kept within readable sizes.
    [[nodiscard]] int zoom() const { return zoom_; }
    void setZoom(int points);

    /// Whether lines are broken at the width of the pane, as they are at first; else the pane scrolls
    /// sideways.
    [[nodiscard]] bool wrapsLines() const { return lineWrapMode() == WidgetWidth; }
    void setWrapsLines(bool wraps);

signals:
    /// The user has made the text larger or smaller.
    void zoomed();
    /// A line of the text was clicked twice.
    void lineDoubleClicked(const QString& line);

protected:
    PaneTextEdit(const QMargins& margins, QWidget* parent);

    /// Called when `text`, cut into `blocks`, is about to enter the emptied document.
    virtual void prepareReplacement(const AttributedText& text, const TextBlocks& blocks);
    /// Called when `text` is about to be added; its first block goes on in the document's last.
    virtual void prepareAddition(const AttributedText& text, const TextBlocks& blocks);

    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

    [[nodiscard]] PaneDocumentLayout& paneLayout() const { return *layout_; }
    /// For a pane that shows in another way where the keyboard is.
    void hideCaret() { paintsCaret_ = false; }
    /// The selection's characters with their own line ends.
    [[nodiscard]] QString exactSelection() const;

private:
    void installDocument(const QMargins& margins);
    void select(int anchor, int position);
    void paintCaret();
    void takeSpacingFromFont();
    void repaintFirstLines(const QRect& rect, int dy);
    [[nodiscard]] QPointF onNearestLine(QPointF point) const;

    PaneDocumentLayout* layout_ = nullptr;
    bool paintsCaret_ = true;
    int zoom_ = 0;
    int wheelTurn_ = 0; ///< in eighths of a degree, since the last whole step
    LineEnd ownLineEnd_ = LineEnd::lf;
};

} // namespace lexiform::qt
