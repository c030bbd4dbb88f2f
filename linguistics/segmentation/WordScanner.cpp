#include "linguistics/segmentation/WordScanner.h"

#include "linguistics/segmentation/EnglishWords.h"
#include "linguistics/segmentation/SpecialForms.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Unit.h"

namespace lexiform::linguistics {

namespace {

// Far more than any host name or number that is written in one piece.
constexpr std::size_t lookAhead = 64;

// French, Italian and Catalan words that lose their vowel before another.
constexpr std::array<std::string_view, 36> elided = {
    "all",   "bell",  "c",      "ch",    "coll",   "com",    "cos",  "d",    "dall", "dell",  "dov",    "ell",
    "gl",    "grand", "j",      "jusqu", "l",      "lorsqu", "m",    "n",    "nell", "nient", "puisqu", "qu",
    "quand", "quell", "quelqu", "quest", "quoiqu", "s",      "sant", "sull", "t",    "tutt",  "un",     "v"};
static_assert(std::is_sorted(elided.begin(), elided.end()));

bool isFigureMark(char c) {
    return c == ':' || c == '/';
}

} // namespace

std::size_t WordScanner::endOfWord(std::size_t start, std::size_t limit) {
    start_ = segment_ = start;
    limit_ = limit;
    std::size_t end = endOfRun(start);
    while (end < limit_) {
        if (elidesBefore(end)) return end + lengthOfApostrophe(text_.substr(end));
        const std::size_t connector = connectorAt(end);
        if (connector == 0) break;
        segment_ = end + connector;
        end = endOfRun(segment_);
    }
    return keepsFullStop(end) ? end + 1 : end;
}

std::size_t WordScanner::endOfRun(std::size_t at) const {
    while (at < limit_) {
        if (isAsciiAlnum(text_[at]) &&
            (at + 1 == limit_ || static_cast<unsigned char>(text_[at + 1]) < 0x80)) {
            ++at;
            continue;
        }
        const Unit unit = unitAt(characters_, text_.substr(0, limit_), at);
        if (unit.kind != CharacterClass::letter && unit.kind != CharacterClass::digit) break;
        at = unit.end;
    }
    return at;
}

// The bytes of the mark at `at` if it joins what stands before and after it, else 0.
std::size_t WordScanner::connectorAt(std::size_t at) const {
    const CodePoint point = codePointAt(text_.substr(0, limit_), at);
    // A mark that carries marks of its own is no connector.
    const std::size_t next = at + point.length;
    if (next >= limit_ || !(isAsciiAlnum(text_[next]) || letterAt(next))) return 0;
    switch (point.value) {
    case 0x2019: // the typographic apostrophe
    case 0xB4:
    case 0xB7:  // between two l in Catalan
    case 0x5F3: // within Hebrew abbreviations
    case 0x5F4:
        return letterAt(next) ? point.length : 0;
    case 0x2010:
    case 0x2011:
        return !conventions_.partsHyphens || keepsHyphen(text_.substr(segment_, at - segment_)) ? point.length
                                                                                                : 0;
    default:
        return point.value < 0x80 && joinsMark(static_cast<char>(point.value), at) ? 1 : 0;
    }
}

// Whether an apostrophe at `at` ends an elided word ("l'|homme").
bool WordScanner::elidesBefore(std::size_t at) const {
    if (!conventions_.elides || segment_ != start_) return false;
    const std::size_t mark = lengthOfApostrophe(text_.substr(at, limit_ - at));
    return mark != 0 && at + mark < limit_ &&
           holds(elided, LowerCasedWord(text_.substr(start_, at - start_)).view());
}

bool WordScanner::letterAt(std::size_t at) const {
    return at < limit_ &&
           characters_.classOf(codePointAt(text_.substr(0, limit_), at)) == CharacterClass::letter;
}

std::size_t WordScanner::digitsFrom(std::size_t at) const {
    std::size_t end = at;
    while (end - at < lookAhead && isAsciiDigit(byteAt(end)))
        ++end;
    return end - at;
}

std::size_t WordScanner::digitsBefore(std::size_t at) const {
    std::size_t start = at;
    while (start > segment_ && isAsciiDigit(text_[start - 1]))
        --start;
    return start == segment_ ? at - start : 0;
}

std::size_t WordScanner::alnumsFrom(std::size_t at) const {
    std::size_t end = at;
    while (end - at < lookAhead && isAsciiAlnum(byteAt(end)))
        ++end;
    return end - at;
}

bool WordScanner::joinsMark(char mark, std::size_t at) const {
    const bool betweenDigits = isAsciiDigit(charBefore(at)) && isAsciiDigit(byteAt(at + 1));
    switch (mark) {
    case '\'':
    case '`':
        return letterAt(at + 1);
    case '.':
        return joinsFullStop(at);
    case ',':
        return betweenDigits && joinsComma(at);
    case '-':
        return joinsHyphen(at);
    case '&':
        return joinsAmpersand(at);
    case '*': // "f*ck"
        return isAsciiLetter(charBefore(at)) && isAsciiLetter(byteAt(at + 1));
    case '@':
    case '_':
        return true;
    default:
        return isFigureMark(mark) && betweenDigits;
    }
}

bool WordScanner::joinsFullStop(std::size_t at) const {
    const char next = byteAt(at + 1);
    if (isAsciiDigit(charBefore(at)) && isAsciiDigit(next)) return true;
    const std::size_t left = at - segment_;
    const bool oneLetterFollows = isAsciiLetter(next) && !isAsciiAlnum(byteAt(at + 2));
    if (oneLetterFollows && left == 1 && isAsciiLetter(charBefore(at))) return true;
    // "Ph.D."
    if (oneLetterFollows && left == 2 && isAsciiUpper(next) && byteAt(at + 2) == '.') return true;
    return joinsNetworkName(at);
}

// Whether the labels from here to the end of the dotted name end like a host or a file.
bool WordScanner::joinsNetworkName(std::size_t at) const {
    std::size_t label = at + 1;
    for (std::size_t end = label; end - at < lookAhead; ++end) {
        const char c = byteAt(end);
        if (isAsciiAlnum(c) || c == '-' || c == '_') continue;
        if (c == '.' && isAsciiAlnum(byteAt(end + 1))) {
            label = end + 1;
            continue;
        }
        const std::string_view last = text_.substr(label, end - label);
        // "it.Co" starts a sentence.
        const bool oneCase = last.size() > 1 && isAsciiUpper(last[0]) == isAsciiUpper(last[1]);
        return oneCase && endsNetworkName(last);
    }
    return false;
}

bool WordScanner::joinsComma(std::size_t at) const {
    const std::size_t digits = digitsFrom(at + 1);
    if (digits == 3) return true;
    // A decimal comma, not a list.
    return digits <= 2 && digitsBefore(at) > 0 && byteAt(at + 1 + digits) != ',' && segment_ == start_;
}

bool WordScanner::joinsHyphen(std::size_t at) const {
    if (!conventions_.partsHyphens && (letterAt(at + 1) || isAsciiLetter(charBefore(at)))) return true;
    if (segment_ == start_ && keepsHyphen(text_.substr(segment_, at - segment_))) return true;
    return isAsciiDigit(byteAt(at + 1)) && joinsHyphenatedFigures(at);
}

// Telephone numbers and dates stay whole; "20-30" and "1999-2000" are two numbers.
bool WordScanner::joinsHyphenatedFigures(std::size_t at) const {
    const std::size_t left = digitsBefore(at);
    const std::size_t right = digitsFrom(at + 1);
    const char after = byteAt(at + 1 + right);
    const bool inside = after == '-' || segment_ != start_;
    if (left == 3 && right == 4) return true;
    return inside && ((left == 3 && right == 3) || (left == 1 && right == 3) || (left == 4 && right == 2) ||
                      (left == 2 && right == 2) || (left == 2 && right == 4));
}

bool WordScanner::joinsAmpersand(std::size_t at) const {
    const std::size_t left = at - segment_;
    const std::size_t right = alnumsFrom(at + 1);
    if (left > 3 || right > 3) return false;
    const char before = charBefore(at);
    const char next = byteAt(at + 1);
    return (isAsciiUpper(before) && isAsciiUpper(next)) || (left == 1 && right == 1 && isAsciiLetter(before));
}

// The first byte after the white space at `at`, which may lie past the chunk; 0 at the paragraph's end.
char WordScanner::characterAfterSpace(std::size_t at) const {
    const std::size_t end = std::min(text_.size(), at + lookAhead);
    while (at < end && (text_[at] == ' ' || text_[at] == '\n' || text_[at] == '\r' || text_[at] == '\t'))
        ++at;
    return at < end ? text_[at] : '\0';
}

bool WordScanner::keepsFullStop(std::size_t end) const {
    if (byteAt(end) != '.' || byteAt(end + 1) == '.') return false;
    if (unitAt(characters_, text_, end).end != end + 1) return false;
    const std::string_view word = text_.substr(start_, end - start_);
    const char next = characterAfterSpace(end + 1);
    // "U.S.", "e.g.", "Ph.D."
    if (segment_ != start_ && end - segment_ == 1 && isAsciiLetter(text_[segment_]) &&
        text_[segment_ - 1] == '.')
        return true;
    if (word.size() == 1 && isAsciiUpper(word[0]) && word[0] != 'I' && isAsciiUpper(next)) return true;
    if (conventions_.hasPointedOrdinals && word.size() <= 2 &&
        std::all_of(word.begin(), word.end(), isAsciiDigit))
        return isAsciiLetter(next);
    return conventions_.english && word.size() > 1 && keepsEnglishFullStop(word, end);
}

bool WordScanner::keepsEnglishFullStop(std::string_view word, std::size_t end) const {
    const char next = characterAfterSpace(end + 1);
    if (isAbbreviation(word)) return true;
    if (isDayName(word)) return next != '\0';
    if (isAbbreviationBeforeNumber(word)) return isAsciiDigit(next);
    return isAbbreviationInsideSentence(word) && next != '\0' && !isAsciiUpper(next);
}

} // namespace lexiform::linguistics
