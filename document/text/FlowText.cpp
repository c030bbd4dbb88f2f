#include "document/text/FlowText.h"

#include <utility>

namespace lexiform::document {

void FlowText::append(std::string_view text) {
    if (text.empty()) return;
    text_.append(breaks_).append(text);
    breaks_.clear();
}

void FlowText::endParagraph() {
    breaks_ += '\n';
    hasParagraph_ = true;
}

void FlowText::endCell() {
    if (std::exchange(hasParagraph_, false) && breaks_.ends_with('\n')) breaks_.pop_back();
    breaks_ += '\t';
}

void FlowText::endRow() {
    if (breaks_.ends_with('\t')) breaks_.pop_back();
    breaks_ += '\n';
    hasParagraph_ = true;
}

void FlowText::appendLines(std::string_view lines) {
    if (lines.empty()) return;
    append(lines.substr(0, lines.size() - 1));
    endParagraph();
}

std::string FlowText::take() && {
    text_.append(breaks_);
    return std::move(text_);
}

} // namespace lexiform::document
