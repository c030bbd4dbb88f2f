#include "platform/qt/windows/DocumentWindow.h"

#include "platform/qt/windows/DocumentMenuBar.h"
#include "platform/qt/windows/FileDropTarget.h"
#include "platform/qt/windows/FontRelay.h"
#include "platform/qt/windows/RememberedPlace.h"
#include "platform/qt/windows/ScreenAppearance.h"
#include "platform/qt/windows/WaitCursor.h"
#include "platform/qt/windows/connectPanes.h"
#include "platform/qt/windows/followClassMarks.h"
#include "platform/qt/windows/wordCount.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include <utility>

namespace lexiform::qt {

namespace {

constexpr QSize defaultSize{1280, 800};
constexpr int sideMargin = 8;
constexpr int standardTypesItem = 3; // of the types pop-up: it runs the lexical pass
constexpr int busyGap = 6;

} // namespace

DocumentWindow::DocumentWindow(std::shared_ptr<ViewController> controller, const WindowServices& services)
    : controller_(std::move(controller)), store_(services.store), actions_(makeTextActions(this)),
      toolBar_(new DocumentToolBar(actions_, this)), busyLine_(new BusyLine(this)),
      panes_(new DocumentPanes(this)), findBar_(new FindBar(this)),
      paneCommands_(*panes_, *findBar_, services.store, this), statusLine_(new StatusLine(this)),
      outlets_(*controller_, *panes_, toolBar_->typesPopUp(), busyLine_, [this] { return displayName_; }) {
    buildBars(services);
    setCentralWidget(makeContent());
    connectCommands();
    new RememberedPlace(*this, QStringLiteral("window"), defaultSize, services);
    new FontRelay(*this);
    panes_->arrange(store_.paneSizes());
    followClassMarks(services.theme, *this, [this](const ClassMarks& marks) {
        panes_->output()->setClassMarks(marks);
        panes_->key()->setClassMarks(marks);
    });
    panes_->input()->setFocus();
    services.windows.add(this);
    new ScreenAppearance(*this, [this] { run(&ViewController::viewDidAppear, &DocumentWindow::showParsed); });
}

// A window title marks the place of an asterisk with "[*]", which a file name may hold.
void DocumentWindow::setDisplayName(const QString& name) {
    displayName_ = name;
    setWindowTitle(QString(name).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

bool DocumentWindow::isEdited() const {
    return panes_->input()->document()->isModified();
}

void DocumentWindow::markSaved() {
    panes_->input()->document()->setModified(false);
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    if (mayClose_ && !mayClose_()) return event->ignore();
    QMainWindow::closeEvent(event);
    if (event->isAccepted()) emit closed();
}

void DocumentWindow::buildBars(const WindowServices& services) {
    auto* menus = new DocumentMenuBar(actions_, paneCommands_, services, this);
    fileMenu_ = menus->fileMenu();
    for (PaneTextEdit* pane : panes_->all())
        menus->editMenu()->serveAsContextMenuOf(*pane);
    setMenuBar(menus);
    addToolBar(toolBar_);
    setStatusBar(statusLine_);
}

QWidget* DocumentWindow::makeContent() {
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    constexpr int aroundLine = busyGap / 2 - 1;
    column->setContentsMargins(sideMargin, aroundLine, sideMargin, 0);
    column->setSpacing(aroundLine);
    column->addWidget(busyLine_);
    column->addWidget(panes_, 1);
    column->addWidget(findBar_);
    busyLine_->hide();
    return content;
}

void DocumentWindow::connectCommands() {
    connectCommand(actions_.parse, &ViewController::parseButton, &DocumentWindow::showParsed);
    connectCommand(actions_.multiParse, &ViewController::multiParse, &DocumentWindow::showMultiParsed);
    connectCommand(actions_.listWords, &ViewController::listConcButton);
    connectCommand(actions_.saveList, &ViewController::saveConcButton);
    connect(toolBar_->typesPopUp(), &QComboBox::activated, this, [this](int item) {
        run(&ViewController::parse2PopupAction,
            item == standardTypesItem ? &DocumentWindow::showParsed : nullptr);
    });
    connect(panes_->input(), &QPlainTextEdit::textChanged, this, &DocumentWindow::showUnparsed);
    connect(panes_->input()->document(), &QTextDocument::modificationChanged, statusLine_,
            &StatusLine::showEdited);
    connect(new FileDropTarget(*this), &FileDropTarget::dropped, this, &DocumentWindow::filesDropped);
    connectPanes(*panes_, paneCommands_.find(),
                 {.wordAt = [this](std::size_t byte) { return controller_->shownWordAt(byte); },
                  .formsOf = [this](const QString& word) { return formsOf(word); }});
    connect(panes_, &PaneSplitter::arranged, this,
            [this](const QList<int>& sizes) { store_.setPaneSizes(sizes); });
}

QStringList DocumentWindow::formsOf(const QString& word) const {
    QStringList forms;
    for (const std::string& form : controller_->formsListedAs(word.toStdString()))
        forms.append(QString::fromStdString(form));
    return forms;
}

void DocumentWindow::connectCommand(QAction* action, Command command, void (DocumentWindow::*tell)()) {
    connect(action, &QAction::triggered, this, [this, command, tell] { run(command, tell); });
    action->setEnabled(true);
}

void DocumentWindow::run(Command command, void (DocumentWindow::*tell)()) {
    const WaitCursor wait;
    ((*controller_).*command)();
    if (tell != nullptr) (this->*tell)();
}

void DocumentWindow::showParsed() {
    if (panes_->input()->document()->isEmpty())
        statusLine_->showNothing();
    else
        statusLine_->showParsed(wordCount(*controller_));
}

void DocumentWindow::showMultiParsed() {
    if (panes_->input()->document()->isEmpty())
        statusLine_->showNothing();
    else
        statusLine_->showMultiParsed(recordedWordCount(*controller_));
}

void DocumentWindow::showUnparsed() {
    if (panes_->input()->document()->isEmpty())
        statusLine_->showNothing();
    else
        statusLine_->showUnparsed();
}

} // namespace lexiform::qt
