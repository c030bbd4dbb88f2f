#include "platform/qt/documents/FileTypeDialog.h"

#include "document/Document.h"
#include "platform/qt/documents/FileType.h"

#include <QFileInfo>

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
    connect(this, &QFileDialog::filterSelected, this, &FileTypeDialog::takeType);
}

SaveTarget FileTypeDialog::target() const {
    return {selectedFiles().constFirst(), type_};
}

void FileTypeDialog::takeType(const QString& filter) {
    const QFileInfo chosen(selectedFiles().constFirst());
    const bool hadExtension = chosen.suffix() == extensionOf(type_);
    type_ = filter == nameFilterOf(plainTextType) ? plainTextType : richTextType;
    setRequiredExtensions({extensionOf(type_)});
    if (hadExtension) selectFile(chosen.completeBaseName() + u'.' + extensionOf(type_));
}

} // namespace lexiform::qt
