#include "platform/qt/sidewindows/ManualLink.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <optional>

namespace lexiform::qt {

namespace {

constexpr qsizetype fieldCount = 7;
// Of a page or a place on one.
constexpr double furthest = 1e6;

// A line holds the page, the left, top, width and height of the link, and the page and the top of its target.
std::optional<ManualLink> linkIn(const QByteArray& line) {
    QList<double> values;
    for (const QByteArray& field : line.trimmed().split('\t')) {
        bool isNumber = false;
        values.append(field.toDouble(&isNumber));
        if (!isNumber || std::abs(values.last()) > furthest) return std::nullopt;
    }
    if (values.size() != fieldCount) return std::nullopt;
    return ManualLink{.page = static_cast<int>(values[0]),
                      .place = {values[1], values[2], values[3], values[4]},
                      .targetPage = static_cast<int>(values[5]),
                      .targetTop = values[6]};
}

} // namespace

QList<ManualLink> readManualLinks(const QString& manual) {
    const QFileInfo place(manual);
    QFile file(place.path() + u'/' + place.completeBaseName() + QStringLiteral(".links"));
    QList<ManualLink> links;
    if (!file.open(QIODevice::ReadOnly)) return links;
    while (!file.atEnd())
        if (const auto link = linkIn(file.readLine())) links.append(*link);
    return links;
}

} // namespace lexiform::qt
