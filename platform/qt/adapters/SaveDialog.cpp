#include "platform/qt/adapters/SaveDialog.h"

#include <QFileInfo>
#include <QLineEdit>

namespace lexiform::qt {

SaveDialog::SaveDialog(const QString& title) : QFileDialog(nullptr, title) {
    setAcceptMode(QFileDialog::AcceptSave);
    setFileMode(QFileDialog::AnyFile);
}

void SaveDialog::setExtensions(const QStringList& extensions) {
    setRequiredExtensions(extensions);
    QStringList patterns;
    for (const QString& extension : extensions)
        patterns.append(QStringLiteral("*.") + extension);
    setNameFilter(tr("Text files (%1)").arg(patterns.join(u' ')));
}

// A folder typed or chosen is entered, not saved to: it keeps its name.
void SaveDialog::accept() {
    auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name != nullptr && !name->text().isEmpty() && !QFileInfo(directory(), name->text()).isDir())
        name->setText(completed(name->text()));
    QFileDialog::accept();
}

QString SaveDialog::completed(const QString& name) const {
    if (extensions_.isEmpty() || extensions_.contains(QFileInfo(name).suffix(), Qt::CaseInsensitive))
        return name;
    return name + u'.' + extensions_.front();
}

} // namespace lexiform::qt
