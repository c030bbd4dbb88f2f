#pragma once

#include <QStringView>

namespace lexiform::qt {

/// The longest line that is laid out in one piece. A line of a million characters in one block takes
/// a second to paint, and as long again after every key.
constexpr qsizetype longestPiece = 4000;

/// Where to break a line that is longer than `limit`: the length of its first piece, the whole line
/// when it is short enough. Breaks after a space if there is one near the limit and never inside a
/// grapheme cluster, so that a piece may grow past the limit; only a cluster longer than
/// `longestCluster` units is cut, between two characters.
[[nodiscard]] qsizetype softBreakIn(QStringView line, qsizetype limit);

constexpr qsizetype longestCluster = 2 * longestPiece;

} // namespace lexiform::qt
