#include "platform/qt/documents/FileTypeDialog.h"

#include "document/Document.h"
#include "platform/qt/documents/FileType.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>

namespace lexiform::qt {

FileTypeDialog::FileTypeDialog(QWidget& window, const SaveTarget& proposal)
    : SaveDialog(tr("Save As")), type_(proposal.type) {
    setParent(&window, windowFlags());
    setWindowModality(Qt::WindowModal);
    const QFileInfo info(proposal.path);
    setDirectory(info.absolutePath());
    setRequiredExtensions({extensionOf(proposal.type)});
    setNameFilters({nameFilterOf(richTextType), nameFilterOf(plainTextType)});
    selectNameFilter(nameFilterOf(proposal.type));
    selectFile(info.fileName());
    // Once a type is chosen, the dialog takes whatever follows the last dot for an extension.
    connect(findChild<QComboBox*>(QStringLiteral("fileTypeCombo")), &QComboBox::currentIndexChanged, this,
            [this] { typedName_ = nameField().text(); });
    connect(this, &QFileDialog::filterSelected, this, &FileTypeDialog::takeType);
}

SaveTarget FileTypeDialog::target() const {
    return {selectedFiles().constFirst(), type_};
}

void FileTypeDialog::takeType(const QString& filter) {
    const QString before = u'.' + extensionOf(type_);
    type_ = filter == nameFilterOf(plainTextType) ? plainTextType : richTextType;
    const QString extension = extensionOf(type_);
    setRequiredExtensions({extension});
    const bool hadExtension = typedName_.endsWith(before);
    nameField().setText(hadExtension ? typedName_.chopped(before.size()) + u'.' + extension : typedName_);
}

} // namespace lexiform::qt
