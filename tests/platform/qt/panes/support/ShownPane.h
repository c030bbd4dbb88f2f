#pragma once

#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/theme/Palette.h"

#include <QFontInfo>
#include <QTest>
#include <QTextBlock>

#include <string>

namespace lexiform::qt {

/// A pane on screen with a text, and where the text stands in it.
class ShownPane : public InputTextEdit {
public:
    explicit ShownPane(const std::string& text, QSize size = {300, 250}) {
        setPalette(paletteOf(Appearance::light));
        resize(size);
        replaceText(AttributedText(text, Colour::text));
        show();
        setFocus();
        (void)grab();
    }

    QRect caretAt(int position) const {
        QTextCursor cursor(document());
        cursor.setPosition(position);
        return cursorRect(cursor);
    }

    int clickAt(QPoint point) {
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, point);
        return textCursor().position();
    }

    qreal topOf(int block) const {
        return blockBoundingGeometry(document()->findBlockByNumber(block)).translated(contentOffset()).top();
    }

    double em() const { return QFontInfo(font()).pixelSize(); }
};

inline std::string lines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "line " + std::to_string(i) + "\n";
    return text;
}

} // namespace lexiform::qt
