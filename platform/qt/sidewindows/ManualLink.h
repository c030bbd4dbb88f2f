#pragma once

#include <QList>
#include <QRectF>
#include <QString>

namespace lexiform::qt {

/// A link of the manual to another place in it. Pages count from 0; places are in points from the top left
/// corner of their page.
struct ManualLink {
    int page = 0;
    QRectF place;
    int targetPage = 0;
    qreal targetTop = 0;

    bool operator==(const ManualLink&) const = default;
};

/// The links of the manual at a path, from the file that is made with it and lies beside it: Qt's own reader
/// of such documents keeps theirs to itself. None where that file is missing; a line that says no link is
/// passed over.
[[nodiscard]] QList<ManualLink> readManualLinks(const QString& manual);

} // namespace lexiform::qt
