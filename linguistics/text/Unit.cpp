#include "linguistics/text/Unit.h"

namespace lexiform::linguistics {

namespace {

constexpr char32_t zeroWidthJoiner = 0x200D;

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool startsPictograph(const Characters& characters, std::string_view text, std::size_t at) {
    return at < text.size() && characters.classOf(codePointAt(text, at)) == CharacterClass::pictograph;
}

// Marks follow their base; a joiner after a pictograph brings the next one with it.
std::size_t endOfExtenders(const Characters& characters, std::string_view text, std::size_t at, bool emoji) {
    while (at < text.size() && !isAscii(text[at])) {
        const CodePoint point = codePointAt(text, at);
        if (characters.classOf(point) != CharacterClass::mark) break;
        at += point.length;
        if (emoji && point.value == zeroWidthJoiner && startsPictograph(characters, text, at))
            at += codePointAt(text, at).length;
    }
    return at;
}

std::size_t endOfLineBreak(std::string_view text, std::size_t at, CodePoint point) {
    const bool pair = point.value == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    return at + (pair ? 2 : point.length);
}

} // namespace

Unit wideUnitAt(const Characters& characters, std::string_view text, std::size_t at) {
    const CodePoint point = codePointAt(text, at);
    Unit unit{at + point.length, point.value, characters.classOf(point)};
    if (unit.kind == CharacterClass::lineBreak) {
        unit.end = endOfLineBreak(text, at, point);
        return unit;
    }
    if (unit.kind == CharacterClass::other || unit.kind == CharacterClass::space) return unit;
    if (unit.end >= text.size() || isAscii(text[unit.end])) return unit;
    if (unit.kind == CharacterClass::regionalIndicator) {
        const CodePoint next = codePointAt(text, unit.end);
        if (characters.classOf(next) == unit.kind) unit.end += next.length;
    }
    unit.end = endOfExtenders(characters, text, unit.end, unit.kind == CharacterClass::pictograph);
    return unit;
}

} // namespace lexiform::linguistics
