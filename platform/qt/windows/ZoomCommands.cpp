#include "platform/qt/windows/ZoomCommands.h"

namespace lexiform::qt {

ZoomCommands::ZoomCommands(DocumentPanes& panes, PaneFocus& focus, StateStore& store, QObject* parent)
    : QObject(parent), panes_(panes), focus_(focus), store_(store),
      zoomIn_(new QAction(tr("Zoom &In"), this)), zoomOut_(new QAction(tr("Zoom &Out"), this)),
      actualSize_(new QAction(tr("Actual &Size"), this)) {
    // On many keyboards the plus sign needs Shift, so that its key alone gives an equals sign.
    zoomIn_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    zoomOut_->setShortcut(Qt::CTRL | Qt::Key_Minus);
    actualSize_->setShortcut(Qt::CTRL | Qt::Key_0);
    connect(zoomIn_, &QAction::triggered, this, [this] { setZoom(zoom() + 1); });
    connect(zoomOut_, &QAction::triggered, this, [this] { setZoom(zoom() - 1); });
    connect(actualSize_, &QAction::triggered, this, [this] { setZoom(0); });
    restore();
    for (PaneTextEdit* pane : panes_.all())
        connect(pane, &PaneTextEdit::zoomed, this, &ZoomCommands::remember);
}

void ZoomCommands::restore() {
    const QList<int> points = store_.paneZooms();
    const auto panes = panes_.all();
    if (points.size() != static_cast<qsizetype>(panes.size())) return;
    for (std::size_t i = 0; i < panes.size(); ++i)
        panes[i]->setZoom(points[static_cast<qsizetype>(i)]);
}

void ZoomCommands::remember() {
    QList<int> points;
    for (const PaneTextEdit* pane : panes_.all())
        points.append(pane->zoom());
    store_.setPaneZooms(points);
}

void ZoomCommands::setZoom(int points) {
    if (!focus_.pane()) return;
    focus_.pane()->setZoom(points);
    remember();
}

} // namespace lexiform::qt
