#include "platform/qt/adapters/SaveDialog.h"

#include "base/fatalError.h"

#include <QFileInfo>
#include <QLineEdit>

namespace lexiform::qt {

// A desktop's own dialog asks about replacing a file before the name is complete, and knows nothing of
// what a subclass does with its fields.
SaveDialog::SaveDialog(const QString& title) : QFileDialog(nullptr, title) {
    setOption(QFileDialog::DontUseNativeDialog);
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
    const QString name = nameField().text();
    if (!name.isEmpty() && !QFileInfo(directory(), name).isDir()) nameField().setText(completed(name));
    QFileDialog::accept();
}

QLineEdit& SaveDialog::nameField() const {
    auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (field == nullptr) fatalError("the save dialog has no field for the name");
    return *field;
}

QString SaveDialog::completed(const QString& name) const {
    if (extensions_.isEmpty() || extensions_.contains(QFileInfo(name).suffix(), Qt::CaseInsensitive))
        return name;
    return name + u'.' + extensions_.front();
}

} // namespace lexiform::qt
