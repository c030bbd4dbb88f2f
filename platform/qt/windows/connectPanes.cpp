#include "platform/qt/windows/connectPanes.h"

#include "platform/qt/windows/wordDetailsText.h"

#include <QHelpEvent>
#include <QRegularExpression>
#include <QTextDocument>
#include <QToolTip>

#include <utility>

namespace lexiform::qt {

namespace {

/// Tells in words what is known of the word at a position of the output.
class WordTeller {
public:
    WordTeller(const DocumentPanes& panes, WordInquiry inquire)
        : panes_(panes), inquire_(std::move(inquire)) {}

    [[nodiscard]] QString at(int position) const {
        const auto byte = panes_.output()->byteAt(position);
        const auto details = byte ? inquire_(*byte) : std::nullopt;
        return details ? textOf(*details) : meaningAt(position);
    }

    /// What the key says of the character.
    [[nodiscard]] QString meaningAt(int position) const {
        const auto colour = panes_.output()->colourAt(position);
        return colour ? panes_.key()->meaningOf(*colour) : QString();
    }

private:
    const DocumentPanes& panes_;
    WordInquiry inquire_;
};

/// Shows what is known of a word while the pointer rests on it.
class WordTip : public QObject {
public:
    WordTip(DocumentPanes& panes, WordTeller teller)
        : QObject(&panes), output_(*panes.output()), teller_(std::move(teller)) {
        output_.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return false;
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const int near = output_.cursorForPosition(help.pos()).position();
        // The nearest gap between two characters may be the one after the character pointed at.
        const bool isAfter =
            output_.cursorRect(output_.cursorForPosition(help.pos())).left() > help.pos().x();
        // A lemma may look like a mark-up element, which a tool tip would not show.
        const QString plain = teller_.at(isAfter ? near - 1 : near);
        const QString text = plain.isEmpty() ? plain : Qt::convertFromPlainText(plain);
        QToolTip::showText(help.globalPos(), text, output_.viewport());
        return true;
    }

private:
    OutputTextEdit& output_;
    WordTeller teller_;
};

} // namespace

QString listedWord(const QString& line) {
    static const QRegularExpression listed(QStringLiteral("^(.+) \\(\\d+\\)$"));
    return listed.match(line).captured(1);
}

void connectPanes(DocumentPanes& panes, FindCommands& find, const PaneInquiries& inquiries) {
    OutputTextEdit* output = panes.output();
    QObject::connect(panes.key(), &KeyTextEdit::chosen, output, &OutputTextEdit::toggleOnly);
    QObject::connect(panes.concordance(), &PaneTextEdit::lineDoubleClicked, output,
                     [output, &find, formsOf = inquiries.formsOf](const QString& line) {
                         const QString word = listedWord(line);
                         if (word.isEmpty()) return;
                         const QStringList forms = formsOf(word);
                         find.findWord(forms.isEmpty() ? QStringList(word) : forms, output);
                     });
    const WordTeller teller(panes, inquiries.wordAt);
    QObject::connect(output, &QPlainTextEdit::cursorPositionChanged, output, [teller, output] {
        const int place = output->textCursor().selectionStart();
        // Each pass sets the caret to the top: only where a reader has moved it is it worth a look-up.
        const bool isMoved = output->hasFocus() && place > 0;
        output->setAccessibleDescription(isMoved ? teller.at(place) : teller.meaningAt(place));
    });
    new WordTip(panes, teller);
}

} // namespace lexiform::qt
