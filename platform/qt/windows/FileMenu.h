#pragma once

#include <QMenu>
#include <QStringList>

#include <functional>

namespace lexiform::qt {

/// The commands on documents. What concerns the window alone the menu does itself; everything else it
/// asks for.
class FileMenu : public QMenu {
    Q_OBJECT

public:
    explicit FileMenu(QWidget* window);

    /// Where the paths of the files that were last open come from, the latest first, each time the menu is
    /// about to be shown.
    void setRecentFiles(std::function<QStringList()> recentFiles);
    /// Whether the document can go back to a file.
    void setRevertible(bool revertible);

    /// Whether the files of this run are opened again at the next.
    void setReopens(bool reopens);

    [[nodiscard]] QMenu* recentMenu() const { return recent_; }

signals:
    void newRequested();
    void openRequested();
    void recentRequested(const QString& path);
    void clearRecentRequested();
    void saveRequested();
    void saveAsRequested();
    void revertRequested();
    void printRequested();
    void reopensChanged(bool reopens);
    void quitRequested();

private:
    void addOpening();
    void addSaving();
    void addLeaving(QWidget* window);
    void fillRecent();

    std::function<QStringList()> recentFiles_;
    QMenu* recent_ = nullptr;
    QAction* revert_ = nullptr;
    QAction* reopen_ = nullptr;
};

} // namespace lexiform::qt
