#include "platform/qt/windows/TextActions.h"

#include "platform/qt/theme/LineIcon.h"

#include <QCoreApplication>

namespace lexiform::qt {

namespace {

QAction* makeAction(QObject* owner, Glyph glyph, const QString& title, const QString& toolTip) {
    auto* action = new QAction(lineIcon(glyph), title, owner);
    // A tool button takes its label from the icon's text: the title without its mnemonic mark.
    action->setIconText(QString(title).remove(u'&'));
    action->setToolTip(toolTip);
    action->setEnabled(false);
    return action;
}

} // namespace

TextActions makeTextActions(QObject* owner) {
    const TextActions actions{
        .parse = makeAction(owner, Glyph::parse, QCoreApplication::translate("TextActions", "&Parse"),
                            QCoreApplication::translate("TextActions", "Colour every word by its class")),
        .multiParse =
            makeAction(owner, Glyph::multiParse, QCoreApplication::translate("TextActions", "&Multi-parse"),
                       QCoreApplication::translate(
                           "TextActions", "Find the script, language, class and lemma of every word")),
        .listWords = makeAction(
            owner, Glyph::list, QCoreApplication::translate("TextActions", "&List words"),
            QCoreApplication::translate("TextActions", "List the words of each class with their counts")),
        .saveList =
            makeAction(owner, Glyph::save, QCoreApplication::translate("TextActions", "&Save list…"),
                       QCoreApplication::translate("TextActions", "Save the list of words to a file")),
    };
    actions.parse->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_R), QKeySequence(Qt::Key_F5)});
    actions.multiParse->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    actions.listWords->setShortcut(Qt::CTRL | Qt::Key_L);
    actions.saveList->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_L);
    return actions;
}

} // namespace lexiform::qt
