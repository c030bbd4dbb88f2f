#include "platform/qt/adapters/SaveDialog.h"

#include "base/fatalError.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

namespace lexiform::qt {

namespace {

constexpr QSize usualSize{720, 480};
constexpr int nameColumn = 0;
constexpr int kindColumn = 2;

} // namespace

// A desktop's own dialog asks about replacing a file before the name is complete, and knows nothing of
// what a subclass does with its fields.
SaveDialog::SaveDialog(const QString& title) : QFileDialog(nullptr, title) {
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(QFileDialog::AcceptSave);
    setFileMode(QFileDialog::AnyFile);
    resize(usualSize);
    giveNamesTheRoom();
}

// The columns are as wide as what they hold, but for the kind of file, which its name tells.
void SaveDialog::giveNamesTheRoom() {
    auto* const files = findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    files->hideColumn(kindColumn);
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    files->header()->setStretchLastSection(false);
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
