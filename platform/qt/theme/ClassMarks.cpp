#include "platform/qt/theme/ClassMarks.h"

#include <QPen>
#include <QPolygonF>
#include <QtMath>

#include <algorithm>
#include <array>

namespace lexiform::qt {

namespace {

using Stroke = ClassLine::Stroke;
using Weight = ClassLine::Weight;

// In the order of Colour.
constexpr std::array<ClassLine, 10> classLines = {{{Stroke::dotted, Weight::thick},
                                                   {Stroke::solid, Weight::twice},
                                                   {Stroke::solid, Weight::thin},
                                                   {Stroke::dashed, Weight::thin},
                                                   {Stroke::waved, Weight::thin},
                                                   {Stroke::dotted, Weight::thin},
                                                   {Stroke::dashed, Weight::twice},
                                                   {Stroke::solid, Weight::thick},
                                                   {Stroke::dashed, Weight::thick},
                                                   {Stroke::none, Weight::thin}}};

constexpr qreal textSizeOfUnit = 16; // a line is one pixel thick under a text of this size
constexpr qreal thickness = 2.5;
constexpr qreal belowBaseLine = 3;
constexpr qreal betweenTwo = 2.5;
constexpr qreal waveHeight = 2;

// A dash pattern counts in widths of the pen.
QVector<qreal> patternOf(const ClassLine& line) {
    const qreal width = line.weight == Weight::thick ? thickness : 1;
    if (line.stroke == Stroke::dashed) return {4 / width, 3 / width};
    if (line.stroke == Stroke::dotted) return {1, 2.5 / width};
    return {};
}

QPen penOf(const ClassLine& line, qreal unit, const QColor& ink) {
    QPen pen(ink, line.weight == Weight::thick ? thickness * unit : unit);
    pen.setCapStyle(Qt::FlatCap);
    if (const auto pattern = patternOf(line); !pattern.isEmpty()) pen.setDashPattern(pattern);
    return pen;
}

QPolygonF waveAlong(const QLineF& line, qreal height) {
    QPolygonF wave;
    const int steps = qCeil(line.dx() / height);
    for (int i = 0; i < steps; ++i)
        wave.append({line.x1() + i * height, line.y1() + (i % 2 == 0 ? 0 : height)});
    return wave;
}

} // namespace

ClassLine classLineOf(Colour colour) {
    return classLines[static_cast<std::size_t>(colour)];
}

void paintClassLine(QPainter& painter, const ClassLine& line, const QLineF& place, qreal textSize,
                    const QColor& ink) {
    if (line.stroke == Stroke::none) return;
    const qreal unit = std::max(textSize / textSizeOfUnit, 1.0);
    const QLineF under = place.translated(0, belowBaseLine * unit);
    painter.setPen(penOf(line, unit, ink));
    if (line.stroke == Stroke::waved) {
        painter.drawPolyline(waveAlong(under, waveHeight * unit));
        return;
    }
    painter.drawLine(under);
    if (line.weight == Weight::twice) painter.drawLine(under.translated(0, betweenTwo * unit));
}

} // namespace lexiform::qt
