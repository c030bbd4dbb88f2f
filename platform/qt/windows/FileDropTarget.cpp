#include "platform/qt/windows/FileDropTarget.h"

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace lexiform::qt {

namespace {

QStringList localFiles(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    return paths;
}

} // namespace

FileDropTarget::FileDropTarget(QWidget& window) : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    for (QAbstractScrollArea* area : window.findChildren<QAbstractScrollArea*>())
        area->viewport()->installEventFilter(this);
}

bool FileDropTarget::eventFilter(QObject* watched, QEvent* event) {
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!isDrag && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event); // the type of the event says so
    const QStringList paths = localFiles(*drop->mimeData());
    if (paths.isEmpty()) return QObject::eventFilter(watched, event);
    // The files stay where they are, even when the other program offers to move them.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (!isDrag) emit dropped(paths);
    return true;
}

} // namespace lexiform::qt
