#include "platform/qt/windows/PaneCommands.h"

namespace lexiform::qt {

namespace {

QAction* separator(QObject* owner) {
    auto* action = new QAction(owner);
    action->setSeparator(true);
    return action;
}

} // namespace

PaneCommands::PaneCommands(DocumentPanes& panes, FindBar& bar, StateStore& store, QWidget* window)
    : focus_(*new PaneFocus(window, panes.input())), find_(new FindCommands(bar, focus_, window)),
      place_(new PlaceCommands(focus_, window)), zoom_(new ZoomCommands(panes, focus_, store, window)),
      wrapInput_(new WrapAction(QObject::tr("&Wrap Lines of Input"), *panes.input(), QStringLiteral("input"),
                                store, window)),
      wrapOutput_(new WrapAction(QObject::tr("Wrap &Lines of Output"), *panes.output(),
                                 QStringLiteral("output"), store, window)),
      separator_(separator(window)) {}

QList<QAction*> PaneCommands::places() const {
    return {find_->find(), find_->findNext(), find_->findPrevious(),
            separator_,    place_->goToTop(), place_->goToEnd()};
}

QList<QAction*> PaneCommands::views() const {
    return {zoom_->zoomIn(), zoom_->zoomOut(), zoom_->actualSize(), separator_, wrapInput_, wrapOutput_};
}

} // namespace lexiform::qt
