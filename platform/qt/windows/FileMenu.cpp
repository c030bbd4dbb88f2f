#include "platform/qt/windows/FileMenu.h"

#include <QFileInfo>

#include <utility>

namespace lexiform::qt {

namespace {

// On one line and without a mnemonic, whatever characters the name has.
QString titleOf(const QString& path) {
    QString name = QFileInfo(path).fileName().simplified();
    return name.replace(u'&', QStringLiteral("&&"));
}

} // namespace

FileMenu::FileMenu(QWidget* window) : QMenu(tr("&File"), window) {
    addOpening();
    addSeparator();
    addSaving();
    addSeparator();
    addLeaving(window);
}

void FileMenu::addOpening() {
    addAction(tr("&New"), QKeySequence::New, this, &FileMenu::newRequested);
    addAction(tr("&Open…"), QKeySequence::Open, this, &FileMenu::openRequested);
    recent_ = addMenu(tr("Open &Recent"));
    connect(recent_, &QMenu::aboutToShow, this, &FileMenu::fillRecent);
    fillRecent();
}

void FileMenu::addSaving() {
    addAction(tr("&Save"), QKeySequence::Save, this, &FileMenu::saveRequested);
    addAction(tr("Save &As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, this, &FileMenu::saveAsRequested);
    revert_ = addAction(tr("Re&vert"), this, &FileMenu::revertRequested);
    revert_->setEnabled(false);
    addSeparator();
    addAction(tr("&Print…"), QKeySequence::Print, this, &FileMenu::printRequested);
}

void FileMenu::addLeaving(QWidget* window) {
    addAction(tr("&Close"), Qt::CTRL | Qt::Key_W, window, &QWidget::close);
    reopen_ = addAction(tr("R&eopen Files at Start"));
    reopen_->setCheckable(true);
    connect(reopen_, &QAction::toggled, this, &FileMenu::reopensChanged);
    // Queued: the menu closes before its window does.
    QAction* quit = addAction(tr("&Quit"));
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    connect(quit, &QAction::triggered, this, &FileMenu::quitRequested, Qt::QueuedConnection);
}

void FileMenu::setRecentFiles(std::function<QStringList()> recentFiles) {
    recentFiles_ = std::move(recentFiles);
    fillRecent();
}

void FileMenu::setRevertible(bool revertible) {
    revert_->setEnabled(revertible);
}

void FileMenu::setReopens(bool reopens) {
    reopen_->setChecked(reopens);
}

void FileMenu::fillRecent() {
    recent_->clear();
    const QStringList paths = recentFiles_ ? recentFiles_() : QStringList();
    for (const QString& path : paths)
        recent_->addAction(titleOf(path), this, [this, path] { emit recentRequested(path); })
            ->setToolTip(path);
    if (!paths.isEmpty()) recent_->addSeparator();
    recent_->addAction(tr("&Clear Menu"), this, &FileMenu::clearRecentRequested)
        ->setEnabled(!paths.isEmpty());
    recent_->setToolTipsVisible(true); // files in two folders may share a name
}

} // namespace lexiform::qt
