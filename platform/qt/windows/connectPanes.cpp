#include "platform/qt/windows/connectPanes.h"

#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>

namespace lexiform::qt {

namespace {

// What the key says of the character at a position of the output.
QString meaningAt(const DocumentPanes& panes, int position) {
    const auto colour = panes.output()->colourAt(position);
    return colour ? panes.key()->meaningOf(*colour) : QString();
}

/// Shows the meaning of a word's colour while the pointer rests on it.
class MeaningTip : public QObject {
public:
    explicit MeaningTip(DocumentPanes& panes) : QObject(&panes), panes_(panes) {
        panes.output()->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return false;
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const OutputTextEdit& output = *panes_.output();
        const int near = output.cursorForPosition(help.pos()).position();
        // The nearest gap between two characters may be the one after the character pointed at.
        const bool isAfter = output.cursorRect(output.cursorForPosition(help.pos())).left() > help.pos().x();
        QToolTip::showText(help.globalPos(), meaningAt(panes_, isAfter ? near - 1 : near), output.viewport());
        return true;
    }

private:
    DocumentPanes& panes_;
};

} // namespace

QString listedWord(const QString& line) {
    static const QRegularExpression listed(QStringLiteral("^(.+) \\(\\d+\\)$"));
    return listed.match(line).captured(1);
}

void connectPanes(DocumentPanes& panes, FindCommands& find) {
    OutputTextEdit* output = panes.output();
    QObject::connect(panes.key(), &KeyTextEdit::chosen, output, &OutputTextEdit::toggleOnly);
    QObject::connect(panes.concordance(), &PaneTextEdit::lineDoubleClicked, output,
                     [output, &find](const QString& line) {
                         const QString word = listedWord(line);
                         if (!word.isEmpty()) find.findWord(word, output);
                     });
    QObject::connect(output, &QPlainTextEdit::cursorPositionChanged, output, [&panes, output] {
        output->setAccessibleDescription(meaningAt(panes, output->textCursor().selectionStart()));
    });
    new MeaningTip(panes);
}

} // namespace lexiform::qt
