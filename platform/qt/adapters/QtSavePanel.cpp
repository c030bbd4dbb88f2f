#include "platform/qt/adapters/QtSavePanel.h"

#include <utility>

namespace lexiform::qt {

QtSavePanel::QtSavePanel(const QString& title) : dialog_(new SaveDialog(title)) {}

QtSavePanel::~QtSavePanel() {
    // Its own signal may be what lets the panel go.
    if (dialog_) dialog_->deleteLater();
}

void QtSavePanel::setCanCreateDirectories(bool allowed) {
    dialog_->setOption(QFileDialog::ReadOnly, !allowed);
}

void QtSavePanel::setAllowedFileTypes(std::span<const std::string_view> extensions) {
    QStringList names;
    for (const std::string_view extension : extensions)
        names.append(QString::fromUtf8(extension.data(), static_cast<qsizetype>(extension.size())));
    dialog_->setExtensions(names);
}

void QtSavePanel::setNameFieldStringValue(const std::string& name) {
    dialog_->selectFile(QString::fromStdString(name));
}

void QtSavePanel::begin(std::function<void(Response)> completion) {
    completion_ = std::move(completion);
    QObject::connect(dialog_, &QDialog::finished, dialog_, [this](int result) { finish(result); });
    dialog_->show();
}

void QtSavePanel::finish(int result) {
    const bool accepted = result == QDialog::Accepted && !dialog_->selectedFiles().isEmpty();
    if (accepted) chosen_ = dialog_->selectedFiles().constFirst().toStdString();
    // The completion may hold the last reference to this panel: nothing of it is touched afterwards.
    const auto completion = std::exchange(completion_, nullptr);
    completion(accepted ? Response::ok : Response::cancel);
}

} // namespace lexiform::qt
