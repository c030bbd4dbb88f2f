#pragma once

#include "platform/qt/panes/InputTextEdit.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <algorithm>
#include <memory>
#include <string>

namespace lexiform::qt {

/// An editable pane on screen whose caret is set by an offset in the document.
class Editor : public InputTextEdit {
public:
    explicit Editor(const std::string& text) {
        resize(400, 300);
        replaceText(AttributedText(text, Colour::text));
        show();
        setFocus();
    }

    Editor& at(int position) {
        select(position, position);
        return *this;
    }

    Editor& select(int from, int to) {
        QTextCursor cursor = textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        return *this;
    }

    Editor& press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(this, key, modifiers);
        return settled();
    }

    Editor& type(const QString& keys) {
        for (const QChar key : keys) {
            QTest::keyClicks(this, key);
            settled();
        }
        return *this;
    }

    Editor& paste(const QString& pasted) {
        QMimeData data;
        data.setText(pasted);
        return paste(data);
    }

    // What another program has copied; nothing is pasted where the menu would not offer to.
    Editor& paste(const QMimeData& copied) {
        if (canInsertFromMimeData(&copied)) insertFromMimeData(&copied);
        return settled();
    }

    // Chooses a command of the context menu.
    Editor& choose(const char* name) {
        const std::unique_ptr<QMenu> menu(createStandardContextMenu());
        menu->findChild<QAction*>(name)->trigger();
        return settled();
    }

    int longestBlock() const {
        int longest = 0;
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            longest = std::max(longest, block.length() - 1);
        return longest;
    }

    int softBreaks() const {
        const QString raw = document()->toRawText();
        const auto ends = std::count(raw.begin(), raw.end(), QChar(QChar::ParagraphSeparator));
        std::string shown = text();
        return static_cast<int>(ends) - static_cast<int>(std::count(shown.begin(), shown.end(), '\n'));
    }

private:
    Editor& settled() {
        QCoreApplication::processEvents();
        return *this;
    }
};

/// So many characters of words and spaces.
inline std::string words(std::size_t length) {
    std::string text;
    while (text.size() < length)
        text += "some words ";
    text.resize(length);
    return text;
}

} // namespace lexiform::qt
