#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QLineF>
#include <QPainter>

#include <cstdint>

namespace lexiform::qt {

/// How the classes of words are told apart on the screen. Files, copies and prints have the standard
/// colours, whatever the screen shows.
struct ClassMarks {
    ClassPalette palette = ClassPalette::standard;
    /// Whether each class is underlined in a style of its own besides.
    bool underlined = false;

    bool operator==(const ClassMarks&) const = default;
};

/// The style in which words of a colour are underlined; each has another.
struct ClassLine {
    enum class Stroke : std::uint8_t { none, solid, dashed, dotted, waved };
    enum class Weight : std::uint8_t { thin, twice, thick };

    Stroke stroke;
    Weight weight;

    bool operator==(const ClassLine&) const = default;
};

/// None for the text colour.
[[nodiscard]] ClassLine classLineOf(Colour colour);

/// Paints the line of a class. `place` is where a text of `textSize` pixels stands, along its base line.
void paintClassLine(QPainter& painter, const ClassLine& line, const QLineF& place, qreal textSize,
                    const QColor& ink);

} // namespace lexiform::qt
