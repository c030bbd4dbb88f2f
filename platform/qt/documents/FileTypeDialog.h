#pragma once

#include "platform/qt/adapters/SaveDialog.h"
#include "platform/qt/documents/DocumentQuestions.h"

namespace lexiform::qt {

/// Asks where a document is to be saved and as what. The name follows the chosen type's extension.
class FileTypeDialog : public SaveDialog {
    Q_OBJECT

public:
    FileTypeDialog(QWidget& window, const SaveTarget& proposal);

    /// What was chosen, once the dialog is accepted.
    [[nodiscard]] SaveTarget target() const;

private:
    void takeType(const QString& filter);

    std::string type_;
    QString typedName_; ///< what the name was when another type was chosen
};

} // namespace lexiform::qt
