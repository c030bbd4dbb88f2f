#pragma once

#include <QList>
#include <QSplitter>

namespace lexiform::qt {

/// The row of panes. Until somebody arranges them it divides its width by a rule of its own, so that
/// the first two panes stay equal and wrap at the same words.
class PaneSplitter : public QSplitter {
    Q_OBJECT

public:
    explicit PaneSplitter(QWidget* parent = nullptr);

    /// Adds a pane at the right.
    void addPane(QWidget* pane, int minimumWidth, int stretch);
    /// Takes an arrangement made earlier; one that does not fit the number of panes is left alone.
    void arrange(const QList<int>& sizes);

signals:
    /// Somebody has moved a handle.
    void arranged(const QList<int>& sizes);

protected:
    QSplitterHandle* createHandle() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool arranged_ = false;
};

} // namespace lexiform::qt
