#pragma once

#include "platform/qt/windows/DocumentPanes.h"
#include "platform/qt/windows/PaneFocus.h"
#include "platform/qt/windows/StateStore.h"

#include <QAction>

namespace lexiform::qt {

/// Makes the text of the pane that a person works in larger, smaller and as usual again, and remembers
/// the sizes of all panes for the windows to come.
class ZoomCommands : public QObject {
    Q_OBJECT

public:
    /// Gives the panes their remembered sizes at once. What it is given must outlive the commands.
    ZoomCommands(DocumentPanes& panes, PaneFocus& focus, StateStore& store, QObject* parent);

    [[nodiscard]] QAction* zoomIn() const { return zoomIn_; }
    [[nodiscard]] QAction* zoomOut() const { return zoomOut_; }
    [[nodiscard]] QAction* actualSize() const { return actualSize_; }

private:
    void restore();
    void remember();
    void setZoom(int points);
    [[nodiscard]] int zoom() const { return focus_.pane() ? focus_.pane()->zoom() : 0; }

    DocumentPanes& panes_;
    PaneFocus& focus_;
    StateStore& store_;
    QAction* zoomIn_;
    QAction* zoomOut_;
    QAction* actualSize_;
};

} // namespace lexiform::qt
