#pragma once

#include "platform/qt/documents/DocumentQuestions.h"

namespace lexiform::qt {

/// Asks in dialogs over the document's window.
class DialogQuestions : public DocumentQuestions {
public:
    UnsavedAnswer askToSave(QWidget& window, const QString& name) override;
    OtherTextAnswer askToSaveOtherText(QWidget& window, const QString& name) override;
    bool askToSaveWithoutEdits(QWidget& window, const QString& name) override;
    bool askToOverwriteChange(QWidget& window, const QString& name) override;
    bool askToRevert(QWidget& window, const QString& name) override;
    std::optional<SaveTarget> chooseTarget(QWidget& window, const SaveTarget& proposal) override;
    void tellNotSaved(QWidget& window, const QString& name, const QString& reason) override;
};

} // namespace lexiform::qt
