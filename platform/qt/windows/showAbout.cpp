#include "platform/qt/windows/showAbout.h"

#include "platform/qt/windows/messageBox.h"

#include <QCoreApplication>

namespace lexiform::qt {

void showAbout(QWidget& window) {
    const QString name =
        QCoreApplication::translate("showAbout", "Lexiform %1").arg(QCoreApplication::applicationVersion());
    auto* box = new QMessageBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    fillMessageBox(
        *box, name,
        QCoreApplication::translate(
            "showAbout", "Reads a text and colours every word by its class, beside a key to the colours."));
    box->setStandardButtons(QMessageBox::Close);
    box->open();
}

} // namespace lexiform::qt
