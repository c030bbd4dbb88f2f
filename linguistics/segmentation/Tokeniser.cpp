#include "linguistics/segmentation/Tokeniser.h"

#include "linguistics/segmentation/Particles.h"
#include "linguistics/segmentation/TokenJoiner.h"
#include "linguistics/text/AsciiText.h"

#include <algorithm>

namespace lexiform::linguistics {

Tokeniser::Tokeniser() : characters_(Characters::table()), cutter_(characters_) {}

void Tokeniser::tokenise(std::string_view paragraph, std::size_t offset, std::string_view language,
                         const LearnedSegmentation* learned, std::vector<Token>& tokens) {
    paragraph_ = paragraph;
    offset_ = offset;
    at_ = 0;
    tokens_ = &tokens;
    conventions_ = conventionsOf(language);
    cutter_.start(paragraph, conventions_, learned);
    reviser_.reset();
    if (learned && learned->tokenEnds) reviser_.emplace(characters_, paragraph_, *learned);
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
    joinOverSpaces(paragraph_, offset_, conventions_, learned, first, tokens);
}

void Tokeniser::emit(std::size_t end, TokenKind kind) {
    Token token;
    token.range = {offset_ + at_, end - at_};
    token.kind = kind;
    tokens_->push_back(token);
    at_ = end;
}

void Tokeniser::emitPieces() {
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
    const Chunk chunk = nextChunk();
    const bool mayPart = reviser_ && reviser_->mayPart(paragraph_.substr(chunk.start, chunk.size()));
    if (chunk.isPlain && !conventions_.english && !mayPart) return emitWord(chunk.end);
    cutter_.cut(chunk, pieces_);
    if (reviser_ && (!chunk.isPlain || mayPart || pieces_.size() > 1) && !endsPlainly(chunk))
        reviser_->revise(chunk.start, pieces_);
    emitPieces();
}

// Whether the chunk is letters with a comma or the like after them, which is most of those with marks.
bool Tokeniser::endsPlainly(const Chunk& chunk) const {
    if (pieces_.size() != 2 || pieces_[0].end + 1 != chunk.end) return false;
    const char mark = paragraph_[chunk.end - 1];
    if (mark != ',' && mark != ';' && mark != '!' && mark != '?') return false;
    const std::string_view word = paragraph_.substr(chunk.start, chunk.size() - 1);
    return std::all_of(word.begin(), word.end(), isAsciiLetter) && !reviser_->mayPart(word);
}

Chunk Tokeniser::nextChunk() const {
    bool isPlain = true, hasAddressMark = false;
    std::size_t end = at_;
    while (end < paragraph_.size()) {
        const char byte = paragraph_[end];
        if (isAsciiLetter(byte)) {
            ++end;
            continue;
        }
        const Unit next = unit(end);
        if (next.kind == CharacterClass::space || next.kind == CharacterClass::lineBreak) break;
        if (next.kind != CharacterClass::letter) isPlain = false;
        end = next.end;
        const bool stopInside = byte == '.' && end < paragraph_.size() && isAsciiAlnum(paragraph_[end]);
        if (byte == '@' || byte == '#' || byte == ':' || stopInside) hasAddressMark = true;
    }
    return {at_, end, isPlain, hasAddressMark};
}

} // namespace lexiform::linguistics
