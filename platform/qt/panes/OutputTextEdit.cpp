#include "platform/qt/panes/OutputTextEdit.h"

#include "platform/qt/panes/ColouredMimeData.h"
#include "platform/qt/panes/PaneDocumentLayout.h"
#include "platform/qt/panes/TextBlocks.h"
#include "platform/qt/panes/classLines.h"
#include "platform/qt/panes/lineEndMarks.h"
#include "platform/qt/panes/utf8Length.h"

#include <QEvent>
#include <QPaintEvent>
#include <QTextBlock>

#include <algorithm>

namespace lexiform::qt {

OutputTextEdit::OutputTextEdit(QWidget* parent) : PaneTextEdit(parent) {
    paneLayout().setBlockPreparation([this](const QTextBlock& block) { colour(block); });
}

AttributedText OutputTextEdit::attributedText() const {
    return runs_.coloured(text());
}

void OutputTextEdit::prepareReplacement(const AttributedText& text, const TextBlocks& blocks) {
    only_.reset();
    runs_.clear();
    runs_.append(text);
    length_ = text.string().size();
    blockStarts_ = blocks.starts;
    coloured_.assign(blockStarts_.size(), false);
}

void OutputTextEdit::prepareAddition(const AttributedText& text, const TextBlocks& blocks) {
    if (blockStarts_.empty()) return prepareReplacement(text, blocks);
    runs_.append(text);
    for (std::size_t i = 1; i < blocks.starts.size(); ++i)
        blockStarts_.push_back(length_ + blocks.starts[i]);
    coloured_.back() = false;
    coloured_.resize(blockStarts_.size(), false);
    length_ += text.string().size();
}

void OutputTextEdit::toggleOnly(Colour colour) {
    only_ = only_ == colour ? std::nullopt : std::optional(colour);
    forgetPaintedColours();
}

void OutputTextEdit::setClassMarks(const ClassMarks& marks) {
    marks_ = marks;
    forgetPaintedColours();
}

std::optional<Colour> OutputTextEdit::colourAt(int position) const {
    const QTextBlock block = document()->findBlock(position);
    const auto number = static_cast<std::size_t>(block.blockNumber());
    if (!block.isValid() || number >= blockStarts_.size()) return std::nullopt;
    std::optional<Colour> found;
    const qsizetype at = position - block.position();
    runs_.visit(blockStarts_[number], block.text(), [&](qsizetype start, qsizetype length, Colour colour) {
        if (start <= at && at < start + length) found = colour;
    });
    return found;
}

std::optional<std::size_t> OutputTextEdit::byteAt(int position) const {
    const QTextBlock block = document()->findBlock(position);
    const auto number = static_cast<std::size_t>(block.blockNumber());
    const int at = position - block.position();
    if (!block.isValid() || number >= blockStarts_.size() || at >= block.length() - 1) return std::nullopt;
    return blockStarts_[number] + utf8Length(QStringView(block.text()).first(at));
}

void OutputTextEdit::changeEvent(QEvent* event) {
    PaneTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) forgetPaintedColours();
}

void OutputTextEdit::paintEvent(QPaintEvent* event) {
    PaneTextEdit::paintEvent(event);
    if (marks_.underlined) paintClassLines(event->rect());
}

void OutputTextEdit::paintClassLines(const QRect& rect) {
    QPainter painter(viewport());
    painter.setClipRect(rect);
    painter.setRenderHint(QPainter::Antialiasing);
    ClassLinePainter lines(painter, font());
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= rect.bottom(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        if (block.isVisible() && top + height >= rect.top()) paintClassLines(lines, block, top);
        top += height;
    }
}

void OutputTextEdit::paintClassLines(ClassLinePainter& lines, const QTextBlock& block, qreal top) const {
    const Appearance appearance = appearanceOf(palette());
    const auto paint = [&](qsizetype start, qsizetype length, Colour colour) {
        if (only_ && colour != *only_) return;
        lines.paint(block, top, start, length, colour, valueOf(colour, appearance, marks_.palette));
    };
    runs_.visit(blockStarts_[static_cast<std::size_t>(block.blockNumber())], block.text(), paint);
}

void OutputTextEdit::forgetPaintedColours() {
    QTextBlock block = document()->begin();
    for (std::size_t i = 0; i < coloured_.size(); ++i, block = block.next())
        if (coloured_[i]) block.layout()->clearLayout();
    coloured_.assign(coloured_.size(), false);
    viewport()->update();
}

void OutputTextEdit::colour(const QTextBlock& block) {
    const auto number = static_cast<std::size_t>(block.blockNumber());
    if (number >= coloured_.size() || coloured_[number]) return;
    coloured_[number] = true;
    paneLayout().setFormatsQuietly(block, formatsOf(block));
}

QList<QTextLayout::FormatRange> OutputTextEdit::formatsOf(const QTextBlock& block) const {
    const Appearance appearance = appearanceOf(palette());
    const QString text = block.text();
    QList<QTextLayout::FormatRange> formats;
    const auto add = [&](qsizetype start, qsizetype length, Colour colour) {
        const bool isDimmed = only_ && colour != *only_;
        if (colour == Colour::text && !isDimmed) return;
        QTextLayout::FormatRange range{static_cast<int>(start), static_cast<int>(length), {}};
        range.format.setForeground(isDimmed ? surfacesOf(appearance).disabledText
                                            : valueOf(colour, appearance, marks_.palette));
        formats.push_back(range);
    };
    runs_.visit(blockStarts_[static_cast<std::size_t>(block.blockNumber())], text, add);
    return formats;
}

std::optional<QColor> OutputTextEdit::paintedColourAt(int position) const {
    const QTextBlock block = document()->findBlock(position);
    const int at = position - block.position();
    if (!block.isValid() || at >= block.length() - 1) return std::nullopt;
    (void)blockBoundingRect(block);
    for (const QTextLayout::FormatRange& range : block.layout()->formats())
        if (range.start <= at && at < range.start + range.length) return range.format.foreground().color();
    return palette().color(QPalette::Text);
}

QMimeData* OutputTextEdit::createMimeDataFromSelection() const {
    return new ColouredMimeData(exactSelection(), colouredSelection());
}

// Line ends take the colour of the text without a class: nobody sees it.
AttributedText OutputTextEdit::colouredSelection() const {
    const QTextCursor cursor = textCursor();
    AttributedText selection;
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    for (bool first = true; block.isValid() && block.position() <= cursor.selectionEnd();
         block = block.next()) {
        if (!first)
            selection.append(charactersOf(lineEndBefore(block, ownLineEnd())).toUtf8().toStdString(),
                             Colour::text);
        first = false;
        const qsizetype from = std::max(cursor.selectionStart() - block.position(), 0);
        const QString text = block.text().left(cursor.selectionEnd() - block.position());
        const auto add = [&](qsizetype start, qsizetype length, Colour colour) {
            const qsizetype begin = std::max(start, from);
            if (begin < start + length)
                selection.append(text.sliced(begin, start + length - begin).toStdString(), colour);
        };
        runs_.visit(blockStarts_[static_cast<std::size_t>(block.blockNumber())], text, add);
    }
    return selection;
}

} // namespace lexiform::qt
