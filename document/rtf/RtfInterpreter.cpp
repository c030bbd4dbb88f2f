#include "document/rtf/RtfInterpreter.h"

#include "document/rtf/RtfReader.h"
#include "document/text/utf8.h"

#include <algorithm>
#include <utility>

namespace lexiform::document {

namespace {

constexpr std::int32_t longestFallback = 255;

} // namespace

Outcome<AttributedText, ReadFault> RtfInterpreter::read() {
    do {
        const RtfToken token = scanner_.next();
        if (token.kind == RtfToken::Kind::end) break;
        if (!take(token)) return ReadFault::tooComplex;
    } while (!groups_.empty());
    if (!groups_.empty()) flush(); // cut short
    if (!notes_.text().empty()) {
        body_.endLine();
        body_.append(notes_.text());
    }
    return std::move(body_).take();
}

bool RtfInterpreter::take(const RtfToken& token) {
    using Kind = RtfToken::Kind;
    if (token.kind == Kind::open) {
        if (groups_.size() == deepestRtfGroup) return false;
        open();
        return true;
    }
    if (token.kind == Kind::close) {
        close();
    } else if (token.kind == Kind::word) {
        word(token);
    } else if (token.kind == Kind::symbol) {
        symbol(token.text);
    } else if (token.kind == Kind::byte) {
        const char byte = static_cast<char>(token.number.value_or(0));
        addBytes({&byte, 1});
    } else {
        addBytes(token.text);
    }
    const bool isStar = token.kind == Kind::symbol && token.text == "*";
    startsGroup_ = startsGroup_ && isStar;
    mayBeIgnored_ = isStar;
    return true;
}

void RtfInterpreter::open() {
    if (!groups_.empty()) flush();
    fallback_ = 0;
    groups_.push_back(groups_.empty() ? RtfGroup() : RtfGroup(groups_.back()));
    startsGroup_ = true;
    mayBeIgnored_ = false;
}

void RtfInterpreter::close() {
    flush();
    fallback_ = 0;
    const bool wasNote = group().isNote;
    groups_.pop_back();
    if (wasNote && (groups_.empty() || !group().isNote)) notes_.endLine();
}

void RtfInterpreter::symbol(std::string_view symbol) {
    const char character = symbol.empty() ? '\0' : symbol.front();
    switch (character) {
    case '\\':
    case '{':
    case '}':
        return addBytes(symbol);
    case '~':
        return addCodePoint(0x00A0);
    case '-':
        return addCodePoint(0x00AD);
    case '_':
        return addCodePoint(0x2011);
    case '\t':
        return addCodePoint('\t');
    case '\r':
    case '\n':
        flush();
        return endLine();
    default: // of no matter to the text
        return;
    }
}

void RtfInterpreter::word(const RtfToken& token) {
    const RtfKeyword keyword = rtfKeyword(token.text);
    if (keyword.action == RtfAction::binary) return skipBinary(token.number.value_or(0));
    if (group().destination == RtfDestination::skipped) return;
    if (keyword.action == RtfAction::character) return addCodePoint(keyword.value);
    flush();
    fallback_ = 0;
    if (keyword.action >= RtfAction::skipped) {
        if (startsGroup_) startDestination(keyword.action, token.number.value_or(0));
    } else if (mayBeIgnored_ && startsGroup_) {
        group().destination = RtfDestination::skipped;
    } else if (group().destination == RtfDestination::fontTable) {
        obeyInFontTable(keyword.action, token.number.value_or(0));
    } else if (group().destination == RtfDestination::colourTable) {
        obeyInColourTable(keyword.action, token.number.value_or(0));
    } else {
        obey(keyword, token);
    }
}

void RtfInterpreter::startDestination(RtfAction action, std::int32_t number) {
    RtfDestination& destination = group().destination;
    const bool inText = destination == RtfDestination::text;
    if (action == RtfAction::skipped)
        destination = RtfDestination::skipped;
    else if (action == RtfAction::chosen && destination == RtfDestination::choice)
        destination = RtfDestination::text;
    else if (action == RtfAction::choice && inText)
        destination = RtfDestination::choice;
    else if (action == RtfAction::fontTable && inText)
        destination = RtfDestination::fontTable;
    else if (action == RtfAction::colourTable && inText)
        destination = RtfDestination::colourTable;
    else if (action == RtfAction::note)
        group().isNote = true;
    else if (action == RtfAction::ownLineEnd && inText) {
        appendCodePoint(static_cast<char32_t>(number), ownLineEnd_);
        destination = RtfDestination::skipped;
    }
}

void RtfInterpreter::obeyInFontTable(RtfAction action, std::int32_t number) {
    if (action == RtfAction::font) fonts_.define(number);
    if (action == RtfAction::fontCharset) fonts_.setCharset(number);
    if (action == RtfAction::fontCodePage) fonts_.setFontCodePage(number);
}

void RtfInterpreter::obeyInColourTable(RtfAction action, std::int32_t number) {
    if (action == RtfAction::red) colours_.setRed(number);
    if (action == RtfAction::green) colours_.setGreen(number);
    if (action == RtfAction::blue) colours_.setBlue(number);
}

void RtfInterpreter::obey(const RtfKeyword& keyword, const RtfToken& token) {
    const std::int32_t number = token.number.value_or(0);
    const bool isOn = token.number.value_or(1) != 0;
    switch (keyword.action) {
    case RtfAction::paragraphEnd:
    case RtfAction::lineEnd:
        return endLine();
    case RtfAction::cellEnd:
        if (isShown()) target().endCell();
        return;
    case RtfAction::rowEnd:
        if (isShown()) target().endRow(group().colour);
        return;
    case RtfAction::unicode:
        return addUnit(number);
    case RtfAction::fallbackLength:
        group().fallbackLength = std::clamp(number, 0, longestFallback);
        return;
    case RtfAction::font:
        group().font = number;
        return;
    case RtfAction::plain:
        group().font.reset();
        group().colour = Colour::text;
        group().isHidden = group().isDeleted = false;
        return;
    case RtfAction::colour:
        group().colour = colours_.colourOf(number);
        return;
    case RtfAction::hidden:
        group().isHidden = isOn;
        return;
    case RtfAction::deleted:
        group().isDeleted = isOn;
        return;
    default:
        return obeyForFile(keyword, number);
    }
}

void RtfInterpreter::obeyForFile(const RtfKeyword& keyword, std::int32_t number) {
    if (keyword.action == RtfAction::codePage) fonts_.setCodePage(number);
    if (keyword.action == RtfAction::codePageIs) fonts_.setCodePage(keyword.value);
    if (keyword.action == RtfAction::defaultFont) fonts_.setDefaultFont(number);
    if (keyword.action == RtfAction::writtenOnMac) fonts_.setWrittenOnMac();
}

void RtfInterpreter::skipBinary(std::int32_t count) {
    scanner_.skip(static_cast<std::size_t>(std::max(count, 0)));
    if (fallback_ > 0) --fallback_;
}

} // namespace lexiform::document
