#include "platform/qt/documents/OpenFailure.h"

#include "platform/qt/windows/messageBox.h"

#include <QApplication>
#include <QFileInfo>
#include <QStringList>

namespace lexiform::qt {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("OpenFailure", text);
}

QString nameOf(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

QString reasonOf(OpenFault fault) {
    switch (fault) {
    case OpenFault::missing:
        return tr("There is no such file.");
    case OpenFault::folder:
        return tr("It is a folder.");
    case OpenFault::notAFile:
        return tr("It is not an ordinary file.");
    case OpenFault::notAllowed:
        return tr("You do not have permission to read it.");
    case OpenFault::tooLarge:
        return tr("It is larger than 1 GB, more than a window can show.");
    case OpenFault::unreadable:
        return tr("It could not be read to its end.");
    case OpenFault::refused:
        return tr("The file is empty.");
    case OpenFault::cancelled:
        return tr("Reading it was stopped.");
    }
    return {};
}

} // namespace

FailureMessage messageFor(const std::vector<OpenFailure>& failures) {
    if (failures.size() == 1) {
        const OpenFailure& only = failures.front();
        return {tr("“%1” could not be opened.").arg(nameOf(only.path)), reasonOf(only.fault)};
    }
    QStringList reasons;
    for (const OpenFailure& failure : failures)
        reasons.append(tr("“%1”: %2").arg(nameOf(failure.path), reasonOf(failure.fault)));
    return {tr("%1 files could not be opened.").arg(failures.size()), reasons.join(u'\n')};
}

void showOpenFailures(const std::vector<OpenFailure>& failures) {
    const FailureMessage message = messageFor(failures);
    QMessageBox box(QApplication::activeWindow());
    fillMessageBox(box, message.heading, message.reasons);
    box.exec();
}

} // namespace lexiform::qt
