#include "linguistics/segmentation/ChunkReviser.h"

#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

// How far the words around a chunk are looked at, in bytes.
constexpr std::size_t reach = 24;

constexpr std::uint32_t endOfLine = 1, endOfParagraph = 2, otherMark = 3, number = 4;

bool isBlankByte(char byte) {
    return byte == ' ' || byte == '\t';
}

// Marks that end a token wherever no letter or digit follows.
bool isPlainMark(std::uint32_t mark) {
    return mark == ',' || mark == ';' || mark == '!' || mark == '?' || mark == '"' || mark == 0x201C ||
           mark == 0x201D || mark == 0xAB || mark == 0xBB;
}

std::string_view lettersFrom(const Characters& characters, std::string_view text) {
    std::size_t end = 0;
    while (end < text.size()) {
        const CodePoint point = codePointAt(text, end);
        const CharacterClass kind = characters.classOf(point);
        if (kind != CharacterClass::letter && kind != CharacterClass::mark) break;
        end += point.length;
    }
    return text.substr(0, end);
}

} // namespace

void ChunkReviser::revise(std::size_t start, std::vector<RuleToken>& tokens) {
    atomiser_.read(start, tokens, atoms_);
    aroundIsKnown_ = false;
    revised_.clear();
    OpenToken open{start};
    std::size_t first = 0, rule = 0;
    for (std::size_t i = 0; i < atoms_.size(); ++i) {
        open.add(atoms_[i]);
        const bool ends = i + 1 == atoms_.size() || endsToken(i, open);
        const TokenKind ruleKind = tokens[rule].kind;
        if (atoms_[i].ruleEnds) ++rule;
        if (!ends) continue;
        revised_.push_back({atoms_[i].end, kindOf(first, i, ruleKind), atoms_[i].kind == Atom::Kind::fixed});
        first = i + 1;
        open = {atoms_[i].end};
    }
    tokens.swap(revised_);
}

bool ChunkReviser::endsToken(std::size_t last, const OpenToken& token) {
    if (isPlain(last)) return atoms_[last].ruleEnds;
    if (!aroundIsKnown_) around_ = surroundings(atoms_.front().start, atoms_.back().end);
    aroundIsKnown_ = true;
    boundaryFeatures(atoms_, last, token, around_, learned_, paragraph_, features_);
    return learned_.tokenEnds->decide(atoms_[last].end, features_.view());
}

// Whether the rules are right about the place after an atom, so that there is nothing to learn.
bool ChunkReviser::isPlain(std::size_t last) const {
    const Atom& left = atoms_[last];
    const Atom& right = atoms_[last + 1];
    if (left.kind == Atom::Kind::fixed || right.kind == Atom::Kind::fixed) return true;
    if (left.isWord()) {
        const bool ends = last + 2 == atoms_.size() || !atoms_[last + 2].isWord();
        return ends && isPlainMark(right.shape);
    }
    return right.isWord() && last == 0 && isPlainMark(left.shape);
}

ChunkSurroundings ChunkReviser::surroundings(std::size_t start, std::size_t end) const {
    ChunkSurroundings around;
    std::size_t before = start;
    while (before > 0 && start - before < reach && isBlankByte(paragraph_[before - 1]))
        --before;
    std::size_t word = before;
    while (word > 0 && before - word<reach&& static_cast<unsigned char>(paragraph_[word - 1])> ' ')
        --word;
    if (word < before) around.previous = lowerCasedHash(paragraph_.substr(word, before - word));
    while (end < paragraph_.size() && isBlankByte(paragraph_[end]))
        ++end;
    if (end == paragraph_.size()) {
        around.nextShape = endOfParagraph;
        return around;
    }
    const std::string_view next = lettersFrom(characters_, paragraph_.substr(end, reach));
    if (!next.empty()) {
        around.next = lowerCasedHash(next);
        around.nextShape = shapeOfLetters(next);
    } else if (paragraph_[end] == '\n' || paragraph_[end] == '\r') {
        around.nextShape = endOfLine;
    } else {
        around.nextShape = isAsciiDigit(paragraph_[end]) ? number : otherMark;
    }
    return around;
}

TokenKind ChunkReviser::kindOf(std::size_t first, std::size_t last, TokenKind ruleKind) const {
    for (std::size_t i = first; i <= last; ++i)
        if (atoms_[i].isWord()) return TokenKind::word;
    return ruleKind;
}

} // namespace lexiform::linguistics
