// The part of the interpreter that turns bytes, code units and line ends into text.

#include "document/rtf/RtfInterpreter.h"
#include "document/rtf/rtfCodePages.h"
#include "document/text/utf8.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <utility>

namespace lexiform::document {

void RtfInterpreter::addBytes(std::string_view bytes) {
    const auto stepped = std::min<std::size_t>(static_cast<std::size_t>(fallback_), bytes.size());
    fallback_ -= static_cast<std::int32_t>(stepped);
    bytes.remove_prefix(stepped);
    if (group().destination == RtfDestination::colourTable) return colours_.endEntries(bytes);
    if (isShown()) bytes_.append(bytes);
}

void RtfInterpreter::addUnit(std::int32_t unit) {
    fallback_ = group().fallbackLength;
    // Units from 8000 up are written as negative numbers of 16 bits.
    const auto value = static_cast<char32_t>(unit < 0 ? unit + 0x10000 : unit);
    if (!isShown()) return;
    if (U16_IS_LEAD(value)) {
        dropHighSurrogate();
        highSurrogate_ = value;
    } else if (U16_IS_TRAIL(value) && highSurrogate_ != 0) {
        const char32_t high = std::exchange(highSurrogate_, 0);
        std::string text;
        appendCodePoint(static_cast<char32_t>(U16_GET_SUPPLEMENTARY(high, value)), text);
        addText(text);
    } else {
        std::string text;
        const bool isSymbol = fonts_.codePageOf(group().font) == symbolCodePage;
        appendCodePoint(isSymbol ? symbolOf(value) : value, text);
        addText(text);
    }
}

void RtfInterpreter::addCodePoint(char32_t codePoint) {
    flush();
    if (fallback_ > 0) {
        --fallback_;
        return;
    }
    std::string text;
    appendCodePoint(codePoint, text);
    addText(text);
}

void RtfInterpreter::addText(std::string_view text) {
    if (!isShown()) return;
    dropHighSurrogate();
    ownLineEnd_.clear();
    // The space between a note's number, which is not text, and its words.
    if (group().isNote && target().isAtLineStart())
        text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    target().append(text, group().colour);
}

void RtfInterpreter::endLine() {
    if (!isShown()) return;
    dropHighSurrogate();
    const std::string lineEnd = std::exchange(ownLineEnd_, std::string());
    target().append(lineEnd.empty() ? "\n" : lineEnd, group().colour);
}

void RtfInterpreter::flush() {
    if (bytes_.empty()) return;
    addText(decoder_.decoded(bytes_, fonts_.codePageOf(group().font)));
    bytes_.clear();
}

void RtfInterpreter::dropHighSurrogate() {
    if (std::exchange(highSurrogate_, 0) == 0) return;
    std::string text;
    appendCodePoint(replacementCharacter, text);
    target().append(text, group().colour);
}

bool RtfInterpreter::isShown() const {
    const RtfGroup& group = groups_.back();
    return group.destination == RtfDestination::text && !group.isHidden && !group.isDeleted;
}

} // namespace lexiform::document
