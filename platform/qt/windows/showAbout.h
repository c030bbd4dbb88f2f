#pragma once

#include <QWidget>

namespace lexiform::qt {

/// Tells what the program is, in a box over `window`; returns at once.
void showAbout(QWidget& window);

} // namespace lexiform::qt
