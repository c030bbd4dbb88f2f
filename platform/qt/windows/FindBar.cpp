#include "platform/qt/windows/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>

namespace lexiform::qt {

namespace {

constexpr int barHeight = 44;
constexpr int leadingInset = 24; // with the window's margin, the left edge of all text
constexpr int fieldWidth = 160;
constexpr int messageWidth = 140;

} // namespace

FindBar::FindBar(QWidget* parent) : QFrame(parent), wanted_(new QLineEdit(this)), told_(new QLabel(this)) {
    setObjectName(QStringLiteral("findBar"));
    setMinimumHeight(barHeight);
    setAccessibleName(tr("Find"));
    wanted_->setMinimumWidth(fieldWidth);
    wanted_->setClearButtonEnabled(false);
    told_->setForegroundRole(QPalette::PlaceholderText);
    // A long message takes two lines and widens no window.
    told_->setWordWrap(true);
    told_->setMinimumWidth(messageWidth);
    told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    told_->setAccessibleName(tr("Result of the search"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(leadingInset, 4, 0, 4);
    row->addWidget(wanted_, 2);
    addButton(tr("Previous"), tr("Find the place before (Shift+F3)"), &FindBar::previousRequested);
    addButton(tr("Next"), tr("Find the next place (F3)"), &FindBar::nextRequested);
    matchCase_ = addChoice(tr("Match &case"));
    wholeWord_ = addChoice(tr("Whole &word"));
    expression_ = addChoice(tr("Regular e&xpression"));
    row->addWidget(told_, 3);
    addButton(tr("Close"), tr("Close the find bar (Esc)"), nullptr);
    connect(wanted_, &QLineEdit::textChanged, this, &FindBar::queryChanged);
    // It closes the bar from a pane as well. A bar that is hidden hears of no shortcut.
    new QShortcut(Qt::Key_Escape, this, [this] { dismiss(); });
    hide();
}

QCheckBox* FindBar::addChoice(const QString& title) {
    auto* box = new QCheckBox(title, this);
    layout()->addWidget(box);
    connect(box, &QCheckBox::toggled, this, &FindBar::queryChanged);
    return box;
}

// Without a signal of its own the button closes the bar.
void FindBar::addButton(const QString& title, const QString& toolTip, void (FindBar::*asked)()) {
    auto* button = new QToolButton(this);
    button->setText(title);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    connect(button, &QToolButton::clicked, this, asked ? asked : &FindBar::dismiss);
}

FindQuery FindBar::query() const {
    return {.wanted = wanted_->text(),
            .matchesCase = matchCase_->isChecked(),
            .wholeWord = wholeWord_->isChecked(),
            .isRegularExpression = expression_->isChecked()};
}

void FindBar::setQuery(const FindQuery& query) {
    const QSignalBlocker blocker(this);
    wanted_->setText(query.wanted);
    matchCase_->setChecked(query.matchesCase);
    wholeWord_->setChecked(query.wholeWord);
    expression_->setChecked(query.isRegularExpression);
}

void FindBar::open(const QString& pane, const QString& suggestion) {
    setPane(pane);
    if (!suggestion.isEmpty()) wanted_->setText(suggestion);
    show();
    wanted_->setFocus(Qt::ShortcutFocusReason);
    wanted_->selectAll();
}

void FindBar::setPane(const QString& pane) {
    const QString title = tr("Find in %1").arg(pane);
    wanted_->setPlaceholderText(title);
    wanted_->setAccessibleName(title);
}

void FindBar::tell(const QString& message) {
    told_->setText(message);
    told_->setToolTip(message);
}

void FindBar::dismiss() {
    hide();
    emit dismissed();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers().testFlag(Qt::ShiftModifier))
        emit previousRequested();
    else if (isEnter)
        emit nextRequested();
    else
        QFrame::keyPressEvent(event);
}

} // namespace lexiform::qt
