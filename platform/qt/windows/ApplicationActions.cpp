#include "platform/qt/windows/ApplicationActions.h"

#include <QCoreApplication>

namespace lexiform::qt {

namespace {

QAction* makeAction(QObject* owner, const char* title) {
    return new QAction(QCoreApplication::translate("ApplicationActions", title), owner);
}

// Not translated: it is found by this title.
QAction* makeUpdateState(QObject* owner) {
    auto* action = new QAction(QStringLiteral("Update not checked"), owner);
    action->setCheckable(true);
    action->setEnabled(false);
    return action;
}

} // namespace

ApplicationActions makeApplicationActions(QObject* owner) {
    const ApplicationActions actions{
        .openColours = makeAction(owner, QT_TRANSLATE_NOOP("ApplicationActions", "&Colours")),
        .openPalette = makeAction(owner, QT_TRANSLATE_NOOP("ApplicationActions", "&Palette")),
        .openHelp = makeAction(owner, QT_TRANSLATE_NOOP("ApplicationActions", "Lexiform &Help")),
        .updateState = makeUpdateState(owner),
        .openUpdates = makeAction(owner, QT_TRANSLATE_NOOP("ApplicationActions", "Application &Updates")),
        .openSupport = makeAction(owner, QT_TRANSLATE_NOOP("ApplicationActions", "&Support")),
    };
    actions.openHelp->setShortcut(QKeySequence::HelpContents);
    return actions;
}

} // namespace lexiform::qt
