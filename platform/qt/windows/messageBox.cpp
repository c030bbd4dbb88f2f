#include "platform/qt/windows/messageBox.h"

#include <QApplication>
#include <QIcon>

namespace lexiform::qt {

void fillMessageBox(QMessageBox& box, const QString& text, const QString& details) {
    constexpr int iconSize = 48;
    box.setWindowTitle(QCoreApplication::applicationName());
    // The program's icon instead of a coloured sign: the message says in words what it is.
    box.setIconPixmap(QApplication::windowIcon().pixmap(iconSize));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(details);
}

} // namespace lexiform::qt
