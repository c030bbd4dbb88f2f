#pragma once

#include "analysis/ViewController.h"
#include "platform/qt/windows/ControlOutlets.h"
#include "platform/qt/windows/DocumentPanes.h"
#include "platform/qt/windows/DocumentToolBar.h"
#include "platform/qt/windows/FileMenu.h"
#include "platform/qt/windows/FindBar.h"
#include "platform/qt/windows/PaneCommands.h"
#include "platform/qt/windows/StatusLine.h"
#include "platform/qt/windows/TextActions.h"
#include "platform/qt/windows/WindowServices.h"

#include <QMainWindow>

#include <functional>
#include <memory>

namespace lexiform::qt {

/// The window of a document: bars, panes and status line, connected to the controller of its analysis,
/// which it tells when it comes on screen.
class DocumentWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Keeps `controller` alive and connects all of its controls.
    DocumentWindow(std::shared_ptr<ViewController> controller, const WindowServices& services);

    /// The document's name is the whole title.
    void setDisplayName(const QString& name);
    [[nodiscard]] QString displayName() const { return displayName_; }

    /// Asked before the window closes, which it does not when the answer is false.
    void setCloseQuestion(std::function<bool()> mayClose) { mayClose_ = std::move(mayClose); }

    /// Whether a person has changed the input pane since it was filled or last marked as saved.
    [[nodiscard]] bool isEdited() const;
    void markSaved();

    [[nodiscard]] FileMenu* fileMenu() const { return fileMenu_; }
    [[nodiscard]] const TextActions& textActions() const { return actions_; }
    [[nodiscard]] DocumentPanes* panes() const { return panes_; }
    [[nodiscard]] DocumentToolBar* toolBar() const { return toolBar_; }
    [[nodiscard]] StatusLine* statusLine() const { return statusLine_; }
    [[nodiscard]] FindBar* findBar() const { return findBar_; }

signals:
    /// Files were dropped on the window.
    void filesDropped(const QStringList& paths);
    /// The window has been closed and is about to leave the screen.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    using Command = void (ViewController::*)();

    void buildBars(const WindowServices& services);
    [[nodiscard]] QWidget* makeContent();
    void connectCommands();
    /// Runs `command` when the action is triggered and then, if anything, `tell` for the status line.
    void connectCommand(QAction* action, Command command, void (DocumentWindow::*tell)() = nullptr);
    void run(Command command, void (DocumentWindow::*tell)() = nullptr);
    [[nodiscard]] QStringList formsOf(const QString& word) const;
    void showParsed();
    void showMultiParsed();
    void showUnparsed();

    std::shared_ptr<ViewController> controller_;
    StateStore& store_;
    TextActions actions_;
    DocumentToolBar* toolBar_;
    BusyLine* busyLine_;
    DocumentPanes* panes_;
    FindBar* findBar_;
    PaneCommands paneCommands_;
    StatusLine* statusLine_;
    FileMenu* fileMenu_ = nullptr;
    std::function<bool()> mayClose_;
    ControlOutlets outlets_;
    QString displayName_;
};

} // namespace lexiform::qt
