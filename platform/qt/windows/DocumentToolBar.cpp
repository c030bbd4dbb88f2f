#include "platform/qt/windows/DocumentToolBar.h"

#include "platform/qt/theme/LineIcon.h"

#include <QLabel>
#include <QToolButton>

namespace lexiform::qt {

namespace {

constexpr int barHeight = 44;
constexpr int buttonHeight = 36;
// With the bar's own padding and spacing this puts the first icon on the window's left text edge.
constexpr int leadingInset = 12;

} // namespace

DocumentToolBar::DocumentToolBar(const TextActions& actions, QWidget* parent)
    : QToolBar(tr("Tool bar"), parent), typesPopUp_(new PopUpBox(this)) {
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(lineIconSize);
    setMinimumHeight(barHeight);
    nameForScreenReaders(typesPopUp_, tr("Show"));
    typesPopUp_->setToolTip(tr("Choose what the colours of the output show, after a multi-parse"));

    addSpacer(leadingInset);
    addButton(actions.parse);
    addButton(actions.multiParse);
    addWidget(typesPopUp_);
    addSeparator();
    addButton(actions.listWords);
    addButton(actions.saveList);
}

// What Qt itself tells of a box is the item that it shows, on Linux; its name it leaves to a label.
void DocumentToolBar::nameForScreenReaders(QComboBox* box, const QString& name) {
    box->setAccessibleName(name);
    auto* label = new QLabel(name, this);
    label->setBuddy(box);
    label->hide();
}

void DocumentToolBar::addSpacer(int width) {
    auto* spacer = new QWidget(this);
    spacer->setFixedWidth(width);
    addWidget(spacer);
}

// A tool bar gives its buttons no focus of its own accord.
void DocumentToolBar::addButton(QAction* action) {
    addAction(action);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
    button->setFocusPolicy(Qt::TabFocus);
    button->setMinimumHeight(buttonHeight);
}

} // namespace lexiform::qt
