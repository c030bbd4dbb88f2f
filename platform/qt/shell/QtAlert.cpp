#include "platform/qt/shell/QtAlert.h"

#include "platform/qt/shell/alertIcon.h"
#include "platform/qt/windows/messageBox.h"

#include <QApplication>

#include <algorithm>

namespace lexiform::qt {

QtAlert::QtAlert() : box_(QApplication::activeWindow()) {
    fillMessageBox(box_, {}, {});
}

void QtAlert::setMessageText(const std::string& text) {
    box_.setText(QString::fromStdString(text));
}

void QtAlert::setInformativeText(const std::string& text) {
    box_.setInformativeText(QString::fromStdString(text));
}

void QtAlert::setAlertStyle(Style style) {
    box_.setIconPixmap(alertIcon(style, box_.palette(), box_.devicePixelRatioF()));
}

// Buttons of one role keep their order, and those of this role do so on every desktop.
void QtAlert::addButton(const std::string& title) {
    buttons_.append(box_.addButton(QString::fromStdString(title), QMessageBox::ActionRole));
    box_.setDefaultButton(buttons_.first());
    box_.setEscapeButton(buttons_.first());
}

Alert::Response QtAlert::runModal() {
    box_.exec();
    const auto pressed = std::find(buttons_.cbegin(), buttons_.cend(), box_.clickedButton());
    if (pressed == buttons_.cend()) return Response::firstButton;
    return static_cast<Response>(pressed - buttons_.cbegin());
}

} // namespace lexiform::qt
