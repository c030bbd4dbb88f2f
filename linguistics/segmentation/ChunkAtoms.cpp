#include "linguistics/segmentation/ChunkAtoms.h"

#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/Unit.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

// No learnt ending is longer, in bytes.
constexpr std::size_t longestEnding = 12;

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

Atom::Kind kindOf(const Unit& unit) {
    if (unit.kind == CharacterClass::letter || unit.kind == CharacterClass::joinedLetter)
        return Atom::Kind::letters;
    return unit.kind == CharacterClass::digit ? Atom::Kind::digits : Atom::Kind::mark;
}

} // namespace

std::uint32_t shapeOfLetters(std::string_view letters) {
    const CodePoint first = codePointAt(letters, 0);
    const bool firstUpper = isUpperCase(first.value);
    bool upper = false, lower = false;
    std::size_t at = first.length, count = 1;
    for (; at < letters.size() && count < 8; ++count) {
        const CodePoint point = codePointAt(letters, at);
        upper = upper || isUpperCase(point.value);
        lower = lower || isLowerCase(point.value);
        at += point.length;
    }
    const std::uint32_t length = count == 1 ? 0 : count <= 3 ? 1 : 2;
    return 0x40000000U + length * 8 +
           (firstUpper                 ? 4U
            : isLowerCase(first.value) ? 2U
                                       : 0U) +
           (upper ? 1U : 0U) + (lower ? 32U : 0U);
}

bool ChunkAtoms::mayPart(std::string_view word, const LearnedSegmentation& learned) {
    return word.size() > 1 && learned.endingPairs.holds(word[word.size() - 2], word.back());
}

void ChunkAtoms::read(std::size_t start, std::span<const RuleToken> tokens, std::vector<Atom>& atoms) const {
    atoms.clear();
    for (const RuleToken& token : tokens) {
        if (token.isFixed)
            put(start, token.end, Atom::Kind::fixed, 0, atoms);
        else
            readToken(start, token.end, atoms);
        atoms.back().ruleEnds = true;
        start = token.end;
    }
}

void ChunkAtoms::readToken(std::size_t start, std::size_t end, std::vector<Atom>& atoms) const {
    const std::string_view text = text_.substr(0, end);
    while (start < end) {
        const Unit first = unitAt(characters_, text, start);
        const Atom::Kind kind = kindOf(first);
        std::size_t at = first.end;
        while (at < end) {
            const Unit next = unitAt(characters_, text, at);
            if (kindOf(next) != kind || (kind == Atom::Kind::mark && next.base != first.base)) break;
            at = next.end;
        }
        if (kind == Atom::Kind::letters)
            putLetters(start, at, atoms);
        else
            put(start, at, kind, first.base, atoms);
        start = at;
    }
}

void ChunkAtoms::put(std::size_t start, std::size_t end, Atom::Kind kind, char32_t mark,
                     std::vector<Atom>& atoms) const {
    Atom atom;
    atom.start = start;
    atom.end = end;
    atom.kind = kind;
    const std::string_view spelling = text_.substr(start, end - start);
    if (kind == Atom::Kind::letters)
        atom.shape = shapeOfLetters(spelling);
    else if (kind == Atom::Kind::digits)
        atom.shape = 0x20000000U + static_cast<std::uint32_t>(std::min<std::size_t>(spelling.size(), 5));
    else
        atom.shape = kind == Atom::Kind::fixed ? 0x10000000U : static_cast<std::uint32_t>(mark);
    // The digits of a number say less than how many they are.
    atom.hash = kind == Atom::Kind::letters
                    ? lowerCasedHash(spelling)
                    : atom.shape * 4 + (spelling.size() > 1 ? 1U : 0U) + (spelling.size() > 2 ? 1U : 0U);
    atoms.push_back(atom);
}

// Parts a word before the longest of its learnt endings, and again inside that ending ("da|r|lo").
void ChunkAtoms::putLetters(std::size_t start, std::size_t end, std::vector<Atom>& atoms) const {
    while (const std::size_t length = lengthOfEnding(start, end)) {
        put(start, end - length, Atom::Kind::letters, 0, atoms);
        atoms.back().mayPart = true;
        start = end - length;
    }
    put(start, end, Atom::Kind::letters, 0, atoms);
}

// The bytes of the longest learnt ending of a word, shorter than the word; 0 if it has none.
std::size_t ChunkAtoms::lengthOfEnding(std::size_t start, std::size_t end) const {
    const std::string_view word = text_.substr(start, end - start);
    if (!mayPart(word, learned_)) return 0;
    for (std::size_t length = std::min(word.size() - 1, longestEnding); length > 0; --length) {
        const std::string_view ending = word.substr(word.size() - length);
        if (isContinuation(ending[0]) || !learned_.endings.holds(lowerCasedHash(ending))) continue;
        if (kindOf(unitAt(characters_, ending, 0)) == Atom::Kind::letters) return length;
    }
    return 0;
}

} // namespace lexiform::linguistics
