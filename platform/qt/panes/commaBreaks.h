#pragma once

#include <QTextLayout>

namespace lexiform::qt {

/// Lays out `text`, a line of values with commas between them: breaks after a comma, and inside a value only
/// where it is wider than the width. Bare commas offer no break of their own.
void breakAfterCommas(QTextLayout& layout, QStringView text, qreal width);

} // namespace lexiform::qt
