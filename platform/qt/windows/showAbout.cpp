#include "platform/qt/windows/showAbout.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>

namespace lexiform::qt {

void showAbout(QWidget& window) {
    constexpr int iconSize = 64;
    auto* box = new QMessageBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QCoreApplication::translate("showAbout", "About Lexiform"));
    box->setIconPixmap(window.windowIcon().pixmap(iconSize));
    box->setText(
        QCoreApplication::translate("showAbout", "Lexiform %1").arg(QCoreApplication::applicationVersion()));
    box->setInformativeText(QCoreApplication::translate(
        "showAbout", "Reads a text and colours every word by its class, beside a key to the colours."));
    box->setStandardButtons(QMessageBox::Close);
    box->open();
}

} // namespace lexiform::qt
