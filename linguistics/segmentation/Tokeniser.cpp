#include "linguistics/segmentation/Tokeniser.h"

#include "linguistics/segmentation/CharacterWords.h"
#include "linguistics/segmentation/EnglishWords.h"
#include "linguistics/segmentation/Particles.h"
#include "linguistics/segmentation/SpecialForms.h"
#include "linguistics/segmentation/TokenJoiner.h"
#include "linguistics/segmentation/WordScanner.h"
#include "linguistics/text/AsciiText.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

bool startsWord(CharacterClass kind) {
    return kind == CharacterClass::letter || kind == CharacterClass::digit;
}

// Marks that Unicode files under punctuation, but that stand for a word or a quantity.
bool isSymbolMark(char32_t mark) {
    return mark == '%' || mark == '&' || mark == '#' || mark == '@' || mark == 0x2030 || mark == 0xA7;
}

TokenKind kindOfMark(const Unit& unit) {
    return unit.kind == CharacterClass::punctuation && !isSymbolMark(unit.base) ? TokenKind::punctuation
                                                                                : TokenKind::symbol;
}

// Brackets and currency signs are told apart even where they follow each other.
bool mayRepeat(char32_t mark) {
    constexpr std::u32string_view marks = U".,-!?*=~#_+<>'`:;|^\u2013\u2014\u2026";
    return marks.find(mark) != std::u32string_view::npos;
}

bool continuesRun(char32_t first, char32_t next) {
    if (first == '!' || first == '?') return next == '!' || next == '?';
    if (first == '.' || first == 0x2026) return next == '.' || next == 0x2026;
    return next == first;
}

// "1960's", "80's": one word, as "1960s" is.
bool isDecade(std::string_view figure, std::string_view tail) {
    return tail == "s" && (figure.size() == 2 || figure.size() == 4) && figure.back() == '0' &&
           std::all_of(figure.begin(), figure.end(), isAsciiDigit);
}

// "do|n't", "it|'s": where the enclitic of a word starts, or the word's length if it has none.
std::size_t startOfEnclitic(std::string_view word) {
    const std::size_t mark = word.find_last_of("'`\x99\xB4");
    if (mark == std::string_view::npos) return word.size();
    std::size_t start = mark;
    while (start > 0 && (static_cast<unsigned char>(word[start]) & 0xC0) == 0x80)
        --start;
    if (start == 0) return word.size();
    const std::size_t length = lengthOfApostrophe(word.substr(start));
    if (length == 0) return word.size();
    const std::string_view tail = word.substr(start + length);
    if (isDecade(word.substr(0, start), tail)) return word.size();
    if (tail.size() == 1 && asciiLower(tail[0]) == 't' && start > 1 && asciiLower(word[start - 1]) == 'n')
        return start - 1;
    return lengthOfEnclitic(word.substr(start)) == length + tail.size() ? start : word.size();
}

// "O'Neill" is one word, whatever has been learnt of its parts.
bool isIrishName(std::string_view word) {
    const std::size_t mark = word.size() > 3 && word[0] == 'O' ? lengthOfApostrophe(word.substr(1)) : 0;
    return mark > 0 && mark + 2 < word.size() && isAsciiUpper(word[mark + 1]) &&
           isAsciiLetter(word[mark + 2]);
}

// "report.pdf", which what has been learnt of full stops would part.
bool isNetworkName(std::string_view word) {
    const std::size_t stop = word.find_last_of('.');
    return stop != std::string_view::npos && stop > 0 && stop + 2 < word.size() &&
           endsNetworkName(word.substr(stop + 1));
}

// "8|pm": the length of the figure, or the word's length if it is none with a unit.
std::size_t lengthOfFigure(std::string_view word) {
    if (!isAsciiDigit(word[0]) || !isAsciiLetter(word.back())) return word.size();
    const std::size_t figure = word.find_first_not_of("0123456789.,:");
    return isUnitAfterFigure(word.substr(figure)) ? figure : word.size();
}

} // namespace

Tokeniser::Tokeniser() : characters_(Characters::table()) {}

void Tokeniser::tokenise(std::string_view paragraph, std::size_t offset, std::string_view language,
                         const LearnedSegmentation* learned, std::vector<Token>& tokens) {
    paragraph_ = paragraph;
    offset_ = offset;
    at_ = 0;
    tokens_ = &tokens;
    conventions_ = conventionsOf(language);
    learned_ = learned;
    reviser_.reset();
    if (learned_ && learned_->tokenEnds) reviser_.emplace(characters_, paragraph_, *learned_);
    const std::size_t first = tokens.size();
    while (at_ < paragraph_.size()) {
        const Unit next = unit(at_);
        if (next.kind == CharacterClass::lineBreak)
            emit(next.end, TokenKind::lineBreak);
        else if (next.kind == CharacterClass::space)
            takeSpaces();
        else
            takeChunk();
    }
    joinOverSpaces(paragraph_, offset_, conventions_, learned_, first, tokens);
}

void Tokeniser::emit(std::size_t end, TokenKind kind) {
    Token token;
    token.range = {offset_ + at_, end - at_};
    token.kind = kind;
    tokens_->push_back(token);
    at_ = end;
}

// A token of the rules, which what has been learnt may revise unless it is fixed.
void Tokeniser::put(std::size_t end, TokenKind kind, bool isFixed) {
    pieces_.push_back({end, kind, isFixed});
    at_ = end;
}

void Tokeniser::emitPieces(std::size_t start) {
    at_ = start;
    for (const RuleToken& piece : pieces_) {
        if (piece.kind == TokenKind::word && !piece.isFixed)
            emitWord(piece.end);
        else
            emit(piece.end, piece.kind);
    }
}

void Tokeniser::emitWord(std::size_t end) {
    if (conventions_.partsParticles) {
        const std::size_t particle = startOfParticle(paragraph_.substr(at_, end - at_));
        if (at_ + particle < end) emit(at_ + particle, TokenKind::word);
    }
    emit(end, TokenKind::word);
}

void Tokeniser::takeSpaces() {
    std::size_t end = at_;
    while (end < paragraph_.size()) {
        const Unit next = unit(end);
        if (next.kind == CharacterClass::mark) {
            // A mark after a space has that space for its base.
            std::size_t base = end - 1;
            while ((static_cast<unsigned char>(paragraph_[base]) & 0xC0) == 0x80)
                --base;
            if (base > at_) emit(base, TokenKind::whitespace);
            return emit(next.end, TokenKind::symbol);
        }
        if (next.kind != CharacterClass::space) break;
        end = next.end;
    }
    emit(end, TokenKind::whitespace);
}

void Tokeniser::takeChunk() {
    const std::size_t start = at_;
    const std::size_t end = endOfChunk();
    const bool mayPart = reviser_ && ChunkAtoms::mayPart(paragraph_.substr(start, end - start), *learned_);
    if (plain_ && !conventions_.english && !mayPart) return emitWord(end);
    pieces_.clear();
    if (plain_)
        takeWord(end);
    else
        while (at_ < end)
            takePiece(start, end);
    if (reviser_ && (!plain_ || mayPart || pieces_.size() > 1) && !endsPlainly(start, end))
        reviser_->revise(start, pieces_);
    emitPieces(start);
}

// Whether the chunk is letters with a comma or the like after them, which is most of those with marks.
bool Tokeniser::endsPlainly(std::size_t start, std::size_t end) const {
    if (pieces_.size() != 2 || pieces_[0].end + 1 != end) return false;
    const char mark = paragraph_[end - 1];
    if (mark != ',' && mark != ';' && mark != '!' && mark != '?') return false;
    const std::string_view word = paragraph_.substr(start, end - 1 - start);
    return std::all_of(word.begin(), word.end(), isAsciiLetter) && !ChunkAtoms::mayPart(word, *learned_);
}

std::size_t Tokeniser::endOfChunk() {
    plain_ = true;
    hasAddressMark_ = false;
    std::size_t end = at_;
    while (end < paragraph_.size()) {
        const char byte = paragraph_[end];
        if (isAsciiLetter(byte)) {
            ++end;
            continue;
        }
        const Unit next = unit(end);
        if (next.kind == CharacterClass::space || next.kind == CharacterClass::lineBreak) break;
        if (next.kind != CharacterClass::letter) plain_ = false;
        end = next.end;
        const bool stopInside = byte == '.' && end < paragraph_.size() && isAsciiAlnum(paragraph_[end]);
        if (byte == '@' || byte == '#' || byte == ':' || stopInside) hasAddressMark_ = true;
    }
    return end;
}

void Tokeniser::takePiece(std::size_t chunkStart, std::size_t chunkEnd) {
    if (takeSpecialForm(chunkStart, chunkEnd)) return;
    const Unit next = unit(at_);
    if (startsWord(next.kind))
        takeWord(WordScanner(characters_, paragraph_, conventions_).endOfWord(at_, chunkEnd));
    else if (next.kind == CharacterClass::joinedLetter)
        takeJoinedWords(chunkEnd);
    else
        takeUnit(next, chunkEnd);
}

bool Tokeniser::takeSpecialForm(std::size_t chunkStart, std::size_t chunkEnd) {
    const std::string_view rest = paragraph_.substr(at_, chunkEnd - at_);
    const bool startsChunk = at_ == chunkStart;
    const bool afterWord = !startsChunk && isAsciiAlnum(paragraph_[at_ - 1]);
    if (hasAddressMark_ && !afterWord && takeToken(lengthOfAddress(rest), TokenKind::word, true)) return true;
    if (startsChunk || !isAsciiAlnum(rest[0])) {
        if (takeToken(lengthOfEmoticon(rest, startsChunk), TokenKind::symbol, true)) return true;
    }
    if (takeToken(lengthOfEntities(rest), TokenKind::symbol, true)) return true;
    if (!afterWord && takeToken(lengthOfMarkedFigure(rest), TokenKind::word, false)) return true;
    return conventions_.english && takeApostrophe(rest, startsChunk);
}

// Clipped English words and what is left of them ("'em", "'s", "th-").
bool Tokeniser::takeApostrophe(std::string_view rest, bool startsChunk) {
    if (startsChunk && isBrokenOff(rest)) return takeToken(rest.size(), TokenKind::word, false);
    if (lengthOfApostrophe(rest) == 0) return false;
    if (!startsChunk && takeToken(lengthOfEnclitic(rest), TokenKind::word, false)) return true;
    return takeToken(lengthOfElision(rest), TokenKind::word, false);
}

// Takes `length` bytes as one token unless that is none or would part a mark from its base.
bool Tokeniser::takeToken(std::size_t length, TokenKind kind, bool isFixed) {
    const std::size_t end = at_ + length;
    if (length == 0 || (end < paragraph_.size() && unit(end).kind == CharacterClass::mark)) return false;
    put(end, kind, isFixed);
    return true;
}

void Tokeniser::takeUnit(const Unit& next, std::size_t chunkEnd) {
    const TokenKind kind = kindOfMark(next);
    const bool bare = next.end == at_ + codePointAt(paragraph_, at_).length;
    if (bare && mayRepeat(next.base)) return takeMarks(chunkEnd, kind);
    put(next.end, kind);
}

// "...", "?!", "--", "-->": one mark repeated is one token.
void Tokeniser::takeMarks(std::size_t chunkEnd, TokenKind kind) {
    const char32_t first = unit(at_).base;
    std::size_t end = at_;
    while (end < chunkEnd) {
        const Unit next = unit(end);
        if (!continuesRun(first, next.base) || next.kind == CharacterClass::other) break;
        end = next.end;
    }
    const bool arrow = (first == '-' || first == '=') && end < chunkEnd && paragraph_[end] == '>';
    put(arrow ? unit(end).end : end, kind);
}

void Tokeniser::takeWord(std::size_t end) {
    if (plain_) return takeStem(end);
    if (conventions_.english && isNetworkName(paragraph_.substr(at_, end - at_)))
        return put(end, TokenKind::word, true);
    takeFigure(end);
    if (!conventions_.english) return put(end, TokenKind::word);
    const std::size_t stemEnd = at_ + startOfEnclitic(paragraph_.substr(at_, end - at_));
    takeStem(stemEnd);
    if (stemEnd < end) put(end, TokenKind::word);
}

// Of "8pm" the figure.
void Tokeniser::takeFigure(std::size_t end) {
    const std::size_t length = lengthOfFigure(paragraph_.substr(at_, end - at_));
    if (at_ + length < end) put(at_ + length, TokenKind::word);
}

// A word without its last enclitic, which may hold another ("should|n't" of "shouldn't've").
void Tokeniser::takeStem(std::size_t end) {
    const std::string_view stem = paragraph_.substr(at_, end - at_);
    if (!conventions_.english) return put(end, TokenKind::word);
    if (isIrishName(stem)) return put(end, TokenKind::word, true);
    std::size_t contraction = firstPartOfContraction(stem);
    if (contraction == 0 && mayTellOwner(stem) && isNotOwned(wordAfterSpace(end)))
        contraction = stem.size() - 1;
    const std::size_t split = contraction > 0 || plain_ ? contraction : startOfEnclitic(stem);
    if (split > 0 && split < stem.size()) put(at_ + split, TokenKind::word);
    put(end, TokenKind::word);
}

// The letters after one space at `at`, with white space behind them; empty if something else is there.
std::string_view Tokeniser::wordAfterSpace(std::size_t at) const {
    if (at >= paragraph_.size() || paragraph_[at] != ' ') return {};
    const std::size_t start = at + 1;
    std::size_t end = start;
    while (end < paragraph_.size() && isAsciiLetter(paragraph_[end]))
        ++end;
    const bool isWhole = end == paragraph_.size() || static_cast<unsigned char>(paragraph_[end]) <= ' ';
    return isWhole ? paragraph_.substr(start, end - start) : std::string_view();
}

void Tokeniser::takeJoinedWords(std::size_t chunkEnd) {
    std::size_t end = at_;
    while (end < chunkEnd) {
        const Unit next = unit(end);
        if (next.kind != CharacterClass::joinedLetter) break;
        end = next.end;
    }
    const std::size_t start = at_;
    const std::string_view run = paragraph_.substr(start, end - start);
    std::vector<std::size_t> wordEnds = dictionary_.wordEnds(run);
    if (learned_ && learned_->characters)
        CharacterWords(characters_, *learned_->characters).revise(run, start, wordEnds);
    for (const std::size_t wordEnd : wordEnds) {
        const bool insideUnit = start + wordEnd < end && unit(start + wordEnd).kind == CharacterClass::mark;
        if (!insideUnit) put(start + wordEnd, TokenKind::word, true);
    }
}

} // namespace lexiform::linguistics
