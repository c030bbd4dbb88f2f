#include "platform/qt/panes/PaneDocumentLayout.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace lexiform::qt {

// The editor knows one margin for all sides. The mean of left and right gives lines their width;
// `spaceLines` moves them to where they belong.
PaneDocumentLayout::PaneDocumentLayout(QTextDocument* document, const QMargins& margins)
    : QPlainTextDocumentLayout(document), margins_(margins) {
    document->setDocumentMargin((margins.left() + margins.right()) / 2.0);
}

void PaneDocumentLayout::setPitch(qreal pitch) {
    pitch_ = pitch;
    requestUpdate();
}

void PaneDocumentLayout::setFormatsQuietly(const QTextBlock& block,
                                           const QList<QTextLayout::FormatRange>& formats) {
    quiet_ = true;
    block.layout()->setFormats(formats);
    // The document has noted a change of this block and would tell of it at the next edit, with all
    // that lies between. Told now, nobody listens.
    document()->markContentsDirty(block.position(), 0);
    quiet_ = false;
}

// The editor cuts off what it paints where the widest line's document margin begins, which may be
// left of where our lines end. For scrolling, the width stays what it is.
QSizeF PaneDocumentLayout::documentSize() const {
    const QSizeF size = QPlainTextDocumentLayout::documentSize();
    return painting_ ? QSizeF(QWIDGETSIZE_MAX, size.height()) : size;
}

QRectF PaneDocumentLayout::blockBoundingRect(const QTextBlock& block) const {
    if (block.isValid() && preparation_) preparation_(block);
    QRectF rect = QPlainTextDocumentLayout::blockBoundingRect(block);
    if (rect.isNull()) return rect;
    if (lineBreaking_) breakLines(block);
    rect.setHeight(spaceLines(block));
    return rect;
}

void PaneDocumentLayout::documentChanged(int from, int removed, int added) {
    if (!quiet_) QPlainTextDocumentLayout::documentChanged(from, removed, added);
}

// The editor breaks a block first, which gives the layout its own wrap mode and all lines one width.
// Another wrap mode tells which blocks have been broken anew since. The scroll bar follows the number
// of lines.
void PaneDocumentLayout::breakLines(const QTextBlock& block) const {
    QTextLayout& layout = *block.layout();
    QTextOption option = layout.textOption();
    if (option.wrapMode() == QTextOption::NoWrap || block.textDirection() == Qt::RightToLeft) return;
    lineBreaking_(layout, block.text(), layout.lineAt(0).width());
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    const int before = document()->lineCount();
    QTextBlock(block).setLineCount(layout.lineCount());
    if (document()->lineCount() != before)
        emit const_cast<PaneDocumentLayout*>(this)->documentSizeChanged(documentSize());
}

// What a line lacks to the pitch is left free below it. Above the first block the editor leaves the
// document margin, so that its lines start as much higher as the top margin is smaller. A paragraph that
// begins from right to left keeps to the right, unless its lines are as long as they like.
qreal PaneDocumentLayout::spaceLines(const QTextBlock& block) const {
    const QTextLayout& layout = *block.layout();
    qreal y = block.position() == 0 ? margins_.top() - document()->documentMargin() : 0;
    const bool rightToLeft = block.textDirection() == Qt::RightToLeft &&
                             document()->defaultTextOption().wrapMode() != QTextOption::NoWrap;
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        const qreal slot = std::max(pitch_, line.height());
        const qreal indent = rightToLeft ? std::max(0.0, line.width() - line.naturalTextWidth()) : 0;
        line.setPosition({margins_.left() + indent, y});
        y += slot;
    }
    return block.next().isValid() ? y : y + margins_.bottom();
}

} // namespace lexiform::qt
