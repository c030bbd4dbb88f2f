#include "document/html/HtmlText.h"

#include <algorithm>
#include <utility>

namespace lexiform::document {

namespace {

constexpr std::string_view spaces = " \t\n\r\f";

} // namespace

void HtmlText::append(std::string_view text) {
    while (!text.empty()) {
        const std::size_t word = std::min(text.find_first_not_of(spaces), text.size());
        owesSpace_ = owesSpace_ || word > 0;
        text.remove_prefix(word);
        const std::size_t end = std::min(text.find_first_of(spaces), text.size());
        appendWord(text.substr(0, end));
        text.remove_prefix(end);
    }
}

void HtmlText::appendPreformatted(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (end > 0) {
            settle();
            if (std::exchange(owesSpace_, false) && !isAtLineStart()) text_ += ' ';
            text_.append(text.substr(0, end));
        }
        if (end < text.size()) breakLine();
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void HtmlText::breakBlock() {
    owesSpace_ = false;
    if (lineEnds_ == 0 && !isAtLineStart()) lineEnds_ = 1;
}

void HtmlText::breakLine() {
    owesSpace_ = false;
    ++lineEnds_;
}

void HtmlText::startRow() {
    breakBlock();
    // At once: what is owed inside a row is forgotten at the start of its next cell.
    settleLines();
    isCellStarted_ = false;
    cells_ = 0;
}

void HtmlText::startCell() {
    owesSpace_ = false;
    if (isCellStarted_) {
        lineEnds_ = 0;
        ++cells_;
    }
    isCellStarted_ = true;
}

std::string HtmlText::take() && {
    if (!isAtLineStart()) text_ += '\n';
    return std::move(text_);
}

void HtmlText::appendWord(std::string_view word) {
    if (word.empty()) return;
    settle();
    if (std::exchange(owesSpace_, false) && !isAtLineStart() && text_.back() != '\t') text_ += ' ';
    text_.append(word);
}

void HtmlText::settle() {
    settleLines();
    text_.append(std::exchange(cells_, 0), '\t');
}

void HtmlText::settleLines() {
    text_.append(std::exchange(lineEnds_, 0), '\n');
}

} // namespace lexiform::document
