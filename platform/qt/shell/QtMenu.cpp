#include "platform/qt/shell/QtMenu.h"

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

QtApplication::QtApplication(const QList<QAction*>& helpActions) {
    for (QAction* action : helpActions)
        items_.push_back(std::make_unique<QtMenuItem>(action));
}

MenuItem* QtApplication::itemWithTitle(std::string_view title) {
    const QString wanted = QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
    for (const auto& item : items_)
        if (item->title() == wanted) return item.get();
    return nullptr;
}

} // namespace lexiform::qt
