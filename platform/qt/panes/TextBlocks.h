#pragma once

#include "platform/qt/panes/LineEnd.h"

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::qt {

/// A text cut into the blocks of a document: at its line ends, and softly where a line is too long
/// to be laid out in one piece.
struct TextBlocks {
    QString text;                    ///< the blocks in UTF-16, with a U+2029 between each two
    std::vector<LineEnd> ends;       ///< what each of these stands for
    std::vector<std::size_t> starts; ///< the byte at which each block begins; one more than `ends`
};

/// Cuts a UTF-8 text in one pass. `before` is what already stands in the block to which the first one
/// is added. Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] TextBlocks cutIntoBlocks(std::string_view utf8, QStringView before = {});

/// The line end that most lines have; a line feed for a text of one line. Noncharacters that the
/// editor takes for block ends are nobody's line ends.
[[nodiscard]] LineEnd commonestLineEnd(const TextBlocks& blocks);

} // namespace lexiform::qt
