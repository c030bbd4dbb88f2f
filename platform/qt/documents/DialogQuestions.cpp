#include "platform/qt/documents/DialogQuestions.h"

#include "platform/qt/documents/FileTypeDialog.h"
#include "platform/qt/windows/messageBox.h"

#include <QCoreApplication>
#include <QPushButton>

namespace lexiform::qt {

namespace {

// True when the person chose to go on. What is safe is the default.
bool confirms(QWidget& window, const QString& question, const QString& details, const QString& goOn) {
    QMessageBox box(&window);
    fillMessageBox(box, question, details);
    const QPushButton* yes = box.addButton(goOn, QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    return box.clickedButton() == yes;
}

} // namespace

UnsavedAnswer DialogQuestions::askToSave(QWidget& window, const QString& name) {
    QMessageBox box(&window);
    fillMessageBox(box,
                   QCoreApplication::translate("DocumentQuestions", "Save the changes to “%1”?").arg(name),
                   QCoreApplication::translate("DocumentQuestions", "They are lost if they are not saved."));
    QPushButton* const save =
        box.addButton(QCoreApplication::translate("DocumentQuestions", "&Save"), QMessageBox::AcceptRole);
    const QAbstractButton* discard = box.addButton(
        QCoreApplication::translate("DocumentQuestions", "&Don’t Save"), QMessageBox::DestructiveRole);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(save);
    box.exec();
    if (box.clickedButton() == save) return UnsavedAnswer::save;
    return box.clickedButton() == discard ? UnsavedAnswer::discard : UnsavedAnswer::cancel;
}

OtherTextAnswer DialogQuestions::askToSaveOtherText(QWidget& window, const QString& name) {
    QMessageBox box(&window);
    fillMessageBox(
        box,
        QCoreApplication::translate("DocumentQuestions", "Replace the text of “%1” with the output pane?")
            .arg(name),
        QCoreApplication::translate(
            "DocumentQuestions",
            "What is saved is the output pane, which holds other characters than the text. "
            "Parsing again puts the text there."));
    QPushButton* const saveAs =
        box.addButton(QCoreApplication::translate("DocumentQuestions", "Save &As…"), QMessageBox::AcceptRole);
    const QAbstractButton* replace = box.addButton(
        QCoreApplication::translate("DocumentQuestions", "&Replace"), QMessageBox::DestructiveRole);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(saveAs);
    box.exec();
    if (box.clickedButton() == saveAs) return OtherTextAnswer::saveAs;
    return box.clickedButton() == replace ? OtherTextAnswer::replace : OtherTextAnswer::cancel;
}

bool DialogQuestions::askToSaveWithoutEdits(QWidget& window, const QString& name) {
    return confirms(
        window,
        QCoreApplication::translate("DocumentQuestions", "Save “%1” without its latest changes?").arg(name),
        QCoreApplication::translate(
            "DocumentQuestions",
            "What is saved is the output pane, which does not show them. Parsing puts them there."),
        QCoreApplication::translate("DocumentQuestions", "&Save Without"));
}

bool DialogQuestions::askToOverwriteChange(QWidget& window, const QString& name) {
    return confirms(
        window,
        QCoreApplication::translate("DocumentQuestions", "“%1” was changed by another program.").arg(name),
        QCoreApplication::translate("DocumentQuestions", "Saving replaces what it holds now."),
        QCoreApplication::translate("DocumentQuestions", "&Replace"));
}

bool DialogQuestions::askToRevert(QWidget& window, const QString& name) {
    return confirms(
        window,
        QCoreApplication::translate("DocumentQuestions", "Go back to “%1” as it was saved?").arg(name),
        QCoreApplication::translate("DocumentQuestions",
                                    "The document then counts as unchanged. Its input pane keeps its text."),
        QCoreApplication::translate("DocumentQuestions", "Re&vert"));
}

std::optional<SaveTarget> DialogQuestions::chooseTarget(QWidget& window, const SaveTarget& proposal) {
    FileTypeDialog dialog(window, proposal);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.target();
}

void DialogQuestions::tellNotSaved(QWidget& window, const QString& name, const QString& reason) {
    QMessageBox box(&window);
    fillMessageBox(
        box,
        QCoreApplication::translate("DocumentQuestions", "The document “%1” could not be saved.").arg(name),
        reason);
    box.exec();
}

} // namespace lexiform::qt
