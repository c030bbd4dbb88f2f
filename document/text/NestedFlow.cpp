#include "document/text/NestedFlow.h"

#include <algorithm>
#include <utility>

namespace lexiform::document {

void NestedFlow::endParagraph() {
    text().endParagraph();
    text().appendLines(std::exchange(levels_.back().boxes, std::string()));
}

void NestedFlow::endBox() {
    if (levels_.size() > 1) {
        const std::string lines = takeLevel();
        levels_.back().boxes += lines;
    }
}

void NestedFlow::endNote() {
    if (levels_.size() == 1) return;
    const std::string note = takeLevel();
    // What stands between a note's number, which is no text, and its words.
    notes_.append(note, std::min(note.find_first_not_of(" \t"), note.size()));
}

std::string NestedFlow::take() && {
    levels_.resize(1);
    text().appendLines(levels_.front().boxes);
    return std::move(text()).take() + notes_;
}

std::string NestedFlow::takeLevel() {
    Level level = std::move(levels_.back());
    levels_.pop_back();
    level.text.appendLines(level.boxes);
    return std::move(level.text).take();
}

} // namespace lexiform::document
