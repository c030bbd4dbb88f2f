#include "linguistics/segmentation/ChunkCutter.h"

#include "linguistics/segmentation/CharacterWords.h"
#include "linguistics/segmentation/EnglishEnclitics.h"
#include "linguistics/segmentation/EnglishWords.h"
#include "linguistics/segmentation/FrenchPronouns.h"
#include "linguistics/segmentation/Marks.h"
#include "linguistics/segmentation/SpecialForms.h"
#include "linguistics/segmentation/WordScanner.h"
#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

bool startsWord(CharacterClass kind) {
    return kind == CharacterClass::letter || kind == CharacterClass::digit;
}

// "report.pdf", which what has been learnt of full stops would part; "fine.Net" lacks a space.
bool isNetworkName(std::string_view word) {
    const std::size_t stop = word.find_last_of('.');
    return stop != std::string_view::npos && stop > 0 && stop + 2 < word.size() &&
           endsNetworkName(word.substr(stop + 1)) &&
           (!isAsciiUpper(word[stop + 1]) || isAsciiUpper(word[stop - 1]));
}

// "8|pm": the length of the figure, or the word's length if it is none with a unit.
std::size_t lengthOfFigure(std::string_view word) {
    if (!isAsciiDigit(word[0]) || !isAsciiLetter(word.back())) return word.size();
    const std::size_t figure = word.find_first_not_of("0123456789.,:");
    return isUnitAfterFigure(word.substr(figure)) ? figure : word.size();
}

} // namespace

void ChunkCutter::start(std::string_view paragraph, Conventions conventions,
                        const LearnedSegmentation* learned) {
    paragraph_ = paragraph;
    conventions_ = conventions;
    learned_ = learned;
}

void ChunkCutter::cut(const Chunk& chunk, std::vector<RuleToken>& tokens) {
    chunk_ = chunk;
    tokens_ = &tokens;
    tokens.clear();
    at_ = chunk.start;
    if (chunk.isPlain) return takeWord(chunk.end);
    while (at_ < chunk.end)
        takePiece();
}

// A token of the rules, which what has been learnt may revise unless it is fixed.
void ChunkCutter::put(std::size_t end, TokenKind kind, bool isFixed) {
    tokens_->push_back({end, kind, isFixed});
    at_ = end;
}

void ChunkCutter::takePiece() {
    if (takeSpecialForm()) return;
    const Unit next = unit(at_);
    if (startsWord(next.kind))
        takeWord(WordScanner(characters_, paragraph_, conventions_).endOfWord(at_, chunk_.end));
    else if (next.kind == CharacterClass::joinedLetter)
        takeJoinedWords();
    else
        takeUnit(next);
}

bool ChunkCutter::takeSpecialForm() {
    const std::string_view rest = paragraph_.substr(at_, chunk_.end - at_);
    const bool startsChunk = at_ == chunk_.start;
    const bool afterWord = !startsChunk && isAsciiAlnum(paragraph_[at_ - 1]);
    if (chunk_.hasAddressMark && !afterWord && takeToken(lengthOfAddress(rest), TokenKind::word, true))
        return true;
    if (startsChunk || !isAsciiAlnum(rest[0])) {
        if (takeToken(lengthOfEmoticon(rest, startsChunk), TokenKind::symbol, true)) return true;
    }
    if (takeToken(lengthOfEntities(rest), TokenKind::symbol, true)) return true;
    if (!afterWord && takeToken(lengthOfMarkedFigure(rest), TokenKind::word, false)) return true;
    return conventions_.english && takeApostrophe(rest, startsChunk);
}

// Clipped English words and what is left of them ("'em", "'s", "th-").
bool ChunkCutter::takeApostrophe(std::string_view rest, bool startsChunk) {
    if (startsChunk && isBrokenOff(rest)) return takeToken(rest.size(), TokenKind::word, false);
    if (lengthOfApostrophe(rest) == 0) return false;
    if (!startsChunk && takeToken(lengthOfEnclitic(rest), TokenKind::word, false)) return true;
    return takeToken(lengthOfElision(rest), TokenKind::word, false);
}

// Takes `length` bytes as one token unless that is none or would part a mark from its base.
bool ChunkCutter::takeToken(std::size_t length, TokenKind kind, bool isFixed) {
    const std::size_t end = at_ + length;
    if (length == 0 || (end < paragraph_.size() && unit(end).kind == CharacterClass::mark)) return false;
    put(end, kind, isFixed);
    return true;
}

void ChunkCutter::takeUnit(const Unit& next) {
    const TokenKind kind = kindOfMark(next);
    const bool bare = next.end == at_ + codePointAt(paragraph_, at_).length;
    if (bare && mayRepeat(next.base)) return takeMarks(kind);
    put(next.end, kind);
}

// "...", "?!", "--", "-->": one mark repeated is one token.
void ChunkCutter::takeMarks(TokenKind kind) {
    const char32_t first = unit(at_).base;
    std::size_t end = at_;
    while (end < chunk_.end) {
        const Unit next = unit(end);
        if (!continuesRun(first, next.base) || next.kind == CharacterClass::other) break;
        end = next.end;
    }
    const bool arrow = (first == '-' || first == '=') && end < chunk_.end && paragraph_[end] == '>';
    put(arrow ? unit(end).end : end, kind);
}

void ChunkCutter::takeWord(std::size_t end) {
    if (conventions_.english) return takeEnglishWord(end);
    if (!chunk_.isPlain) takeFigure(end);
    if (conventions_.tiesPronouns) return takeFrenchWord(end);
    put(end, TokenKind::word);
}

// Of "8pm" the figure.
void ChunkCutter::takeFigure(std::size_t end) {
    const std::size_t length = lengthOfFigure(paragraph_.substr(at_, end - at_));
    if (at_ + length < end) put(at_ + length, TokenKind::word);
}

void ChunkCutter::takeEnglishWord(std::size_t end) {
    if (chunk_.isPlain) return takeEnglishStem(end);
    if (isNetworkName(paragraph_.substr(at_, end - at_))) return put(end, TokenKind::word, true);
    takeFigure(end);
    const std::size_t stemEnd = at_ + startOfEnclitic(paragraph_.substr(at_, end - at_));
    takeEnglishStem(stemEnd);
    if (stemEnd < end) put(end, TokenKind::word);
}

// A word without its last enclitic, which may hold another ("should|n't" of "shouldn't've").
void ChunkCutter::takeEnglishStem(std::size_t end) {
    const std::string_view stem = paragraph_.substr(at_, end - at_);
    // Whatever has been learnt of its parts.
    if (isIrishName(stem)) return put(end, TokenKind::word, true);
    std::size_t contraction = firstPartOfContraction(stem);
    if (contraction == 0 && mayTellOwner(stem) && isNotOwned(wordAfterSpace(end)))
        contraction = stem.size() - 1;
    const std::size_t split = contraction > 0 || chunk_.isPlain ? contraction : startOfEnclitic(stem);
    if (split > 0 && split < stem.size()) put(at_ + split, TokenKind::word);
    put(end, TokenKind::word);
}

// The letters after one space at `at`, with white space behind them; empty if something else is there.
std::string_view ChunkCutter::wordAfterSpace(std::size_t at) const {
    if (at >= paragraph_.size() || paragraph_[at] != ' ') return {};
    const std::size_t start = at + 1;
    std::size_t end = start;
    while (end < paragraph_.size() && isAsciiLetter(paragraph_[end]))
        ++end;
    const bool isWhole = end == paragraph_.size() || static_cast<unsigned char>(paragraph_[end]) <= ' ';
    return isWhole ? paragraph_.substr(start, end - start) : std::string_view();
}

// The training texts have too few dialogues to say more of the pronouns than the rules do.
void ChunkCutter::takeFrenchWord(std::size_t end) {
    put(at_ + startOfFrenchPronouns(paragraph_.substr(at_, end - at_)), TokenKind::word);
    while (at_ < end)
        put(at_ + lengthOfFrenchPronoun(paragraph_.substr(at_, end - at_)), TokenKind::word, true);
}

void ChunkCutter::takeJoinedWords() {
    std::size_t end = at_;
    while (end < chunk_.end) {
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
