#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>

namespace lexiform::qt {

/// Takes the files that are dropped anywhere on a window, its panes among it, which would insert their
/// names. Dropped text stays with the panes.
class FileDropTarget : public QObject {
    Q_OBJECT

public:
    /// Belongs to `window`, whose content is complete.
    explicit FileDropTarget(QWidget& window);

signals:
    void dropped(const QStringList& paths);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lexiform::qt
