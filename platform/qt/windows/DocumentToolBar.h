#pragma once

#include "platform/qt/windows/PopUpBox.h"
#include "platform/qt/windows/TextActions.h"

#include <QToolBar>

namespace lexiform::qt {

/// The tool bar of a document window: the commands on the text and the types pop-up between them.
/// Every control can be reached with the keyboard.
class DocumentToolBar : public QToolBar {
    Q_OBJECT

public:
    DocumentToolBar(const TextActions& actions, QWidget* parent);

    [[nodiscard]] PopUpBox* typesPopUp() const { return typesPopUp_; }

private:
    void nameForScreenReaders(QComboBox* box, const QString& name);
    void addSpacer(int width);
    void addButton(QAction* action);

    PopUpBox* typesPopUp_;
};

} // namespace lexiform::qt
