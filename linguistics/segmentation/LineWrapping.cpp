#include "linguistics/segmentation/LineWrapping.h"

#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Unit.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Prose is not set in narrower columns than this, in characters; a shorter line before a break was
// ended on purpose.
constexpr std::size_t narrowestColumn = 40;
constexpr std::size_t narrowestBeforeLowerCase = 25;

struct Line {
    std::size_t length = 0;    ///< in characters, white space at the end left out
    std::size_t firstWord = 0; ///< in characters
    char32_t first = 0;        ///< its first character that is no white space
    char32_t second = 0;       ///< the one after that
    char32_t last = 0;
};

void take(Line& line, const Unit& unit, std::size_t column, bool& inFirstWord) {
    if (unit.kind == CharacterClass::space) {
        if (line.first != 0) inFirstWord = false;
        if (line.second == 0 && line.first != 0) line.second = ' ';
        return;
    }
    if (line.first == 0)
        line.first = unit.base;
    else if (line.second == 0)
        line.second = unit.base;
    if (inFirstWord) ++line.firstWord;
    line.length = column + 1;
    line.last = unit.base;
}

std::vector<Line> linesOf(std::string_view paragraph) {
    const Characters& characters = Characters::table();
    std::vector<Line> lines(1);
    std::size_t column = 0;
    bool inFirstWord = true;
    for (std::size_t at = 0; at < paragraph.size();) {
        const Unit unit = unitAt(characters, paragraph, at);
        at = unit.end;
        if (unit.kind == CharacterClass::lineBreak) {
            lines.emplace_back();
            column = 0;
            inFirstWord = true;
        } else {
            take(lines.back(), unit, column++, inFirstWord);
        }
    }
    return lines;
}

bool opensItem(const Line& line) {
    if (line.second != ' ') return line.first == 0x2022 || line.first == 0x2014; // a bullet, a dash
    return line.first == '-' || line.first == '*' || line.first == 0x2013 || line.first == 0x2022;
}

bool endsSentenceOrTitle(char32_t last) {
    return last == '.' || last == '!' || last == '?' || last == ':' || last == ';' || last == 0x2026;
}

bool wraps(const Line& line, const Line& next, std::size_t width) {
    if (line.length == 0 || next.length == 0 || opensItem(next)) return false;
    const bool nextStartsLow = isLowerCase(next.first);
    const bool full = line.length + 1 + next.firstWord > width;
    if (full)
        return line.length >= narrowestColumn || (nextStartsLow && line.length >= narrowestBeforeLowerCase);
    return nextStartsLow && line.length >= narrowestBeforeLowerCase && !endsSentenceOrTitle(line.last);
}

} // namespace

std::vector<bool> wrappingLineBreaks(std::string_view paragraph) {
    const std::vector<Line> lines = linesOf(paragraph);
    std::size_t width = 0;
    for (const Line& line : lines)
        width = std::max(width, line.length);
    std::vector<bool> wrapping;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        wrapping.push_back(wraps(lines[i], lines[i + 1], width));
    return wrapping;
}

} // namespace lexiform::linguistics
