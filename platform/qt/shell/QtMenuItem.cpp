#include "platform/qt/shell/QtMenuItem.h"

namespace lexiform::qt {

void QtMenuItem::setState(State state) {
    if (action_) action_->setChecked(state == State::on);
}

void QtMenuItem::setTitle(const std::string& title) {
    if (action_) action_->setText(QString::fromStdString(title).replace(u'&', QStringLiteral("&&")));
}

// What the user reads: without the marks of mnemonics.
QString QtMenuItem::title() const {
    if (!action_) return {};
    QString shown = action_->text();
    shown.replace(QStringLiteral("&&"), QStringLiteral("\u0001")).remove(u'&');
    return shown.replace(u'\u0001', u'&');
}

} // namespace lexiform::qt
