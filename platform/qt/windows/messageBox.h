#pragma once

#include <QMessageBox>

namespace lexiform::qt {

/// Makes `box` a message of the program: its icon, `text` and `details` below it, both taken as they
/// stand, since they may hold file names.
void fillMessageBox(QMessageBox& box, const QString& text, const QString& details);

} // namespace lexiform::qt
