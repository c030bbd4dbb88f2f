#include "platform/qt/documents/OpenFailure.h"

#include "platform/qt/windows/messageBox.h"

#include <QApplication>
#include <QFileInfo>
#include <QStringList>

namespace lexiform::qt {

namespace {

QString nameOf(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

QString reasonOf(OpenFault fault) {
    switch (fault) {
    case OpenFault::missing:
        return QCoreApplication::translate("OpenFailure", "There is no such file.");
    case OpenFault::folder:
        return QCoreApplication::translate("OpenFailure", "It is a folder.");
    case OpenFault::notAFile:
        return QCoreApplication::translate("OpenFailure", "It is not an ordinary file.");
    case OpenFault::notAllowed:
        return QCoreApplication::translate("OpenFailure", "You do not have permission to read it.");
    case OpenFault::tooLarge:
        return QCoreApplication::translate("OpenFailure",
                                           "It is larger than 1 GB, more than a window can show.");
    case OpenFault::unreadable:
        return QCoreApplication::translate("OpenFailure", "It could not be read to its end.");
    case OpenFault::refused:
        return QCoreApplication::translate("OpenFailure", "The file is empty.");
    case OpenFault::cancelled:
        return QCoreApplication::translate("OpenFailure", "Reading it was stopped.");
    }
    return {};
}

} // namespace

FailureMessage messageFor(const std::vector<OpenFailure>& failures) {
    if (failures.size() == 1) {
        const OpenFailure& only = failures.front();
        return {
            QCoreApplication::translate("OpenFailure", "“%1” could not be opened.").arg(nameOf(only.path)),
            reasonOf(only.fault)};
    }
    QStringList reasons;
    for (const OpenFailure& failure : failures)
        reasons.append(QCoreApplication::translate("OpenFailure", "“%1”: %2")
                           .arg(nameOf(failure.path), reasonOf(failure.fault)));
    return {QCoreApplication::translate("OpenFailure", "%1 files could not be opened.").arg(failures.size()),
            reasons.join(u'\n')};
}

void showOpenFailures(const std::vector<OpenFailure>& failures) {
    const FailureMessage message = messageFor(failures);
    QMessageBox box(QApplication::activeWindow());
    fillMessageBox(box, message.heading, message.reasons);
    box.exec();
}

} // namespace lexiform::qt
