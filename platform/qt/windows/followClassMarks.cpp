#include "platform/qt/windows/followClassMarks.h"

namespace lexiform::qt {

void followClassMarks(const Theme& theme, const QObject& owner,
                      const std::function<void(const ClassMarks&)>& show) {
    show(theme.classMarks());
    QObject::connect(&theme, &Theme::classMarksChanged, &owner, [&theme, show] { show(theme.classMarks()); });
}

} // namespace lexiform::qt
