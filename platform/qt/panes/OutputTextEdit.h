#pragma once

#include "platform/qt/panes/ColourRuns.h"
#include "platform/qt/panes/PaneTextEdit.h"
#include "platform/qt/theme/ClassMarks.h"

#include <QColor>
#include <QTextLayout>

#include <optional>
#include <vector>

namespace lexiform::qt {

class ClassLinePainter;

/// A read-only pane that shows a text with a colour on every character. Colours follow the palette:
/// when it turns from light to dark, so do they.
///
/// A block is coloured when it first comes into view, so that a long text costs no more than a short one.
class OutputTextEdit : public PaneTextEdit {
    Q_OBJECT

public:
    explicit OutputTextEdit(QWidget* parent = nullptr);

    /// The colour in which the character at a position of the document is painted; nothing past the
    /// end and at the end of a block.
    [[nodiscard]] std::optional<QColor> paintedColourAt(int position) const;
    [[nodiscard]] AttributedText attributedText() const override;
    /// The colour of the character at a position of the document, whatever it is painted in.
    [[nodiscard]] std::optional<Colour> colourAt(int position) const;

    /// The byte of the whole text at which the character at a position of the document begins; nothing
    /// past the end and at the end of a block.
    [[nodiscard]] std::optional<std::size_t> byteAt(int position) const;

    /// Dims all that is not in `colour`, on the screen alone; asked for the same again, or given another
    /// text, shows all again.
    void toggleOnly(Colour colour);
    /// How the colours are shown, on the screen alone.
    void setClassMarks(const ClassMarks& marks);

protected:
    void prepareReplacement(const AttributedText& text, const TextBlocks& blocks) override;
    void prepareAddition(const AttributedText& text, const TextBlocks& blocks) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void colour(const QTextBlock& block);
    void forgetPaintedColours();
    void paintClassLines(const QRect& rect);
    void paintClassLines(ClassLinePainter& lines, const QTextBlock& block, qreal top) const;
    [[nodiscard]] QList<QTextLayout::FormatRange> formatsOf(const QTextBlock& block) const;
    [[nodiscard]] AttributedText colouredSelection() const;

    ColourRuns runs_;
    ClassMarks marks_;
    std::optional<Colour> only_;           ///< the colour that is not dimmed, if others are
    std::size_t length_ = 0;               ///< of the whole text, in bytes
    std::vector<std::size_t> blockStarts_; ///< the byte at which each block begins
    std::vector<bool> coloured_;           ///< which blocks have their colours
};

} // namespace lexiform::qt
