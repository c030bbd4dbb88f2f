#pragma once

#include "platform/qt/theme/Theme.h"

#include <QObject>

#include <functional>

namespace lexiform::qt {

/// Gives `show` the theme's class marks at once and whenever they change, as long as `owner` lives.
void followClassMarks(const Theme& theme, const QObject& owner,
                      const std::function<void(const ClassMarks&)>& show);

} // namespace lexiform::qt
