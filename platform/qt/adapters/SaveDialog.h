#pragma once

#include <QFileDialog>
#include <QStringList>

class QLineEdit;

namespace lexiform::qt {

/// A dialog that asks where to save. A name without one of its extensions gets the first of them before
/// the person is asked whether an existing file may be replaced. It is the same on every desktop.
class SaveDialog : public QFileDialog {
    Q_OBJECT

public:
    explicit SaveDialog(const QString& title);

    /// Without dots, the usual one first.
    void setExtensions(const QStringList& extensions);
    /// The same, with the name filters left as they are.
    void setRequiredExtensions(const QStringList& extensions) { extensions_ = extensions; }

protected:
    void accept() override;
    [[nodiscard]] QLineEdit& nameField() const;

private:
    void giveNamesTheRoom();
    [[nodiscard]] QString completed(const QString& name) const;

    QStringList extensions_;
};

} // namespace lexiform::qt
