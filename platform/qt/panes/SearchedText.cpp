#include "platform/qt/panes/SearchedText.h"

#include "platform/qt/panes/lineEndMarks.h"

#include <QTextBlock>

#include <algorithm>
#include <cstddef>

namespace lexiform::qt {

SearchedText::SearchedText(const QTextDocument& document, LineEnd own)
    : text_(withTrueLineEnds(document.toRawText(), document.begin(), own)) {
    starts_.reserve(static_cast<std::size_t>(document.blockCount()));
    lengths_.reserve(starts_.capacity());
    MarkReader marks(own);
    qsizetype offset = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0) offset += charactersOf(marks.lineEndBefore(block)).size();
        starts_.push_back({block.position(), offset});
        lengths_.push_back(block.length() - 1);
        offset += block.length() - 1;
    }
}

int SearchedText::positionOf(qsizetype offset) const {
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), offset,
                                        [](qsizetype wanted, Start start) { return wanted < start.offset; });
    const Start& start = *std::prev(after);
    const int length = lengths_[static_cast<std::size_t>(after - starts_.begin()) - 1];
    return start.position + static_cast<int>(std::min<qsizetype>(offset - start.offset, length));
}

qsizetype SearchedText::offsetOf(int position) const {
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), position,
                                        [](int wanted, Start start) { return wanted < start.position; });
    const Start& start = *std::prev(after);
    return std::min(start.offset + (position - start.position), text_.size());
}

} // namespace lexiform::qt
