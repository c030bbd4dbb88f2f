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

QRectF PaneDocumentLayout::blockBoundingRect(const QTextBlock& block) const {
    if (block.isValid() && preparation_) preparation_(block);
    QRectF rect = QPlainTextDocumentLayout::blockBoundingRect(block);
    if (rect.isNull()) return rect;
    rect.setHeight(spaceLines(block));
    return rect;
}

void PaneDocumentLayout::documentChanged(int from, int removed, int added) {
    if (!quiet_) QPlainTextDocumentLayout::documentChanged(from, removed, added);
}

// Half of what a line lacks to the pitch goes above it and half below. The editor leaves the document
// margin above the first block whatever that is, so its lines start as much higher as the top margin
// is smaller.
qreal PaneDocumentLayout::spaceLines(const QTextBlock& block) const {
    const QTextLayout& layout = *block.layout();
    qreal y = block.position() == 0 ? margins_.top() - document()->documentMargin() : 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        const qreal slot = std::max(pitch_, line.height());
        line.setPosition({qreal(margins_.left()), y + (slot - line.height()) / 2});
        y += slot;
    }
    return block.next().isValid() ? y : y + margins_.bottom();
}

} // namespace lexiform::qt
