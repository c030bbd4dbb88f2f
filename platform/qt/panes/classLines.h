#pragma once

#include "platform/qt/theme/ClassMarks.h"

#include <QFont>
#include <QTextBlock>

namespace lexiform::qt {

/// Underlines the words of a stretch of a block in the style of its class, on every line that it runs over;
/// space and punctuation marks stay without. `top` is where the block's layout begins.
class ClassLinePainter {
public:
    ClassLinePainter(QPainter& painter, const QFont& font);

    void paint(const QTextBlock& block, qreal top, qsizetype start, qsizetype length, Colour colour,
               const QColor& ink);

private:
    void paintWord(const QTextBlock& block, qreal top, int from, int to, const ClassLine& line,
                   const QColor& ink);

    QPainter& painter_;
    qreal textSize_;
};

} // namespace lexiform::qt
