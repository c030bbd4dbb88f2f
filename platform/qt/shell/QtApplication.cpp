#include "platform/qt/shell/QtApplication.h"

namespace lexiform::qt {

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
