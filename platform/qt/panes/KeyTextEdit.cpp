#include "platform/qt/panes/KeyTextEdit.h"

#include "platform/qt/panes/PaneDocumentLayout.h"
#include "platform/qt/panes/commaBreaks.h"
#include "platform/qt/theme/Appearance.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>

#include <cmath>

namespace lexiform::qt {

namespace {

constexpr int swatchLeft = 22;
constexpr int swatchSize = 12;
constexpr qreal swatchRadius = 3;
constexpr int classColours = static_cast<int>(Colour::text);

} // namespace

KeyTextEdit::KeyTextEdit(QWidget* parent) : PaneTextEdit(keyMargins, parent) {
    paneLayout().setLineBreaking(breakAfterCommas);
}

void KeyTextEdit::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int line = block.blockNumber() / 2;
        if (line < classColours && block.blockNumber() % 2 == 0 && block.length() > 1)
            paintSwatch(painter, line, block);
    }
    painter.end();
    PaneTextEdit::paintEvent(event);
}

// Centred on the middle of a capital in the block's first visual line.
void KeyTextEdit::paintSwatch(QPainter& painter, int line, const QTextBlock& block) const {
    const qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    const QTextLine first = block.layout()->lineAt(0);
    const qreal middle = top + first.y() + first.ascent() - QFontMetricsF(font()).capHeight() / 2;
    painter.setBrush(valueOf(static_cast<Colour>(line), appearanceOf(palette())));
    painter.drawRoundedRect(QRectF(swatchLeft, std::round(middle - swatchSize / 2.0), swatchSize, swatchSize),
                            swatchRadius, swatchRadius);
}

} // namespace lexiform::qt
